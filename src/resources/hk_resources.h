// A table of records of one type. The layout of a record line is data: a
// header in the configuration names the line prefix, the section and the
// typed fields. Lines are compiled against it into the vessel's value pools,
// and the record's parser fetches each value by key.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "Orbitersdk.h"
#include "config/config_table.h"
#include "resources/field_values.h"

class HULLKIT;

template <class T> class HkResources {
  public:
    HkResources() : typeName(T::kTypeName) {}
    virtual ~HkResources() = default;
    HkResources(const HkResources &) = delete;
    HkResources &operator=(const HkResources &) = delete;

    // Fills the record from the pools and makes its host objects. Each record
    // type has its own.
    virtual void ParseRecord(std::string name, T *record);
    // Rebuilds `modsText` and writes it as a line when it isn't empty.
    virtual void WriteResMods(FILEHANDLE scenario, std::vector<std::string> *lines);
    // The token itself; "NONE" and "NEW" both read as the empty text.
    virtual std::string DecodeString(std::string token);
    // The keyword table of integer fields, else the token as an integer.
    virtual int32_t DecodeInt(std::string token);
    // A field of a type letter that the table doesn't know: nothing is read and
    // the field repeats the pool index of the field before it.
    virtual void DecodeCustomField(char type, const std::vector<std::string> &tokens, int32_t &tokenIndex,
                                   int32_t &poolIndex);

    // Reads the header once, then the records of the three configuration levels.
    void Init(HULLKIT *vessel);
    // Files one record line: its first token is the name. With `keep` the line
    // is also remembered for the scenario.
    void AddLine(const std::string &line, bool keep);
    // AddLine on the line after cleaning and macro expansion.
    void AddResourceLine(const std::string &line, bool keep);
    // Replaces the tokens of `name`; a new name goes behind all others, with the
    // level now being loaded.
    void AddRecord(const std::string &name, std::vector<std::string> tokens);
    // Applies `modsText`, "name:value" items at blanks, to the named records;
    // an item for a record that isn't there is passed over.
    void ApplyMods();
    // The scenario's own lines of the table, each as a RESOURCE line.
    void WriteResourceLines(FILEHANDLE scenario, std::vector<std::string> *lines);
    // Compiles and parses every record, in table order.
    void CreateAll();
    void CreateRecord(const std::string &name);

    // The created record of `name`, or null.
    T *Find(const char *name);
    T *Find(std::string name);
    // The record at a position of the table; null outside the table or before
    // the record is created.
    T *At(int32_t index);
    // The name at a position; empty outside the table.
    const std::string &NameAt(int32_t index) const;
    int32_t Count() const { return static_cast<int32_t>(names.size()); }
    // Position of `name` in the table, -1 if absent.
    int32_t IndexOf(const std::string &name) const;

    // A field value of a compiled record; a key that the header lacks, or that
    // the record's line didn't reach, reads the pool's default.
    std::string GetString(const std::string &name, const std::string &key) const;
    int32_t GetInt(const std::string &name, const std::string &key) const;
    double GetDouble(const std::string &name, const std::string &key) const;
    VECTOR3 GetVector(const std::string &name, const std::string &key) const;
    PARTICLESTREAMSPEC GetParticleSpec(const std::string &name, const std::string &key) const;
    std::vector<int32_t> GetIntList(const std::string &name, const std::string &key) const;

    HULLKIT *owner = nullptr;
    std::string typeName;
    std::string prefix;
    std::string sectionName;
    std::vector<FieldDef> fields;
    std::vector<std::string> scenarioLines;
    std::string modsText;
    std::unordered_map<std::string, std::vector<std::string>> tokensByName;
    std::unordered_map<std::string, std::vector<int32_t>> indicesByName;
    std::vector<std::string> names;
    std::vector<int32_t> levels;
    // Node-based: a record keeps its address for the vessel's life, as the
    // host holds pointers into records.
    std::map<std::string, T> records;

  private:
    void ReadHeader();
    void FillLevel(const ConfigTable &plain, const SectionTable &sections);
    std::vector<int32_t> Compile(const std::vector<std::string> &tokens);
    // The pool index of a field of a compiled record; 0 when there is none.
    std::size_t PoolIndex(const std::string &name, const std::string &key) const;
};
