// Key/value tables that hold the vessel's configuration text.
#pragma once

#include <cstddef>
#include <string>

#include <tsl/ordered_map.h>

// Key text to value text, iterated in order of first insertion. Inserting a key
// that is already present changes nothing, so the first insertion of a key wins.
class ConfigTable {
    using Map = tsl::ordered_map<std::string, std::string>;

  public:
    using const_iterator = Map::const_iterator;

    // Adds the pair unless the key is present; returns whether it was added.
    bool Insert(const std::string &key, const std::string &value);

    // The value of `key`, or nullptr when the key is absent. Never adds an entry.
    [[nodiscard]] const std::string *Find(const std::string &key) const;
    [[nodiscard]] bool Contains(const std::string &key) const { return map_.count(key) != 0; }

    // The lookup every consumer uses: a missing key yields the empty text and
    // leaves an empty entry behind. The reference stays valid until the table
    // is erased from or cleared.
    const std::string &Get(const std::string &key);

    void Erase(const std::string &key) { map_.erase(key); }
    void Clear() { map_.clear(); }
    [[nodiscard]] std::size_t Size() const { return map_.size(); }
    [[nodiscard]] bool Empty() const { return map_.empty(); }

    [[nodiscard]] const_iterator begin() const { return map_.begin(); }
    [[nodiscard]] const_iterator end() const { return map_.end(); }

  private:
    Map map_;
};

// Section name to the table of that section's lines (first word as key, the
// rest as value), iterated in order of first appearance.
class SectionTable {
    using Map = tsl::ordered_map<std::string, ConfigTable>;

  public:
    using const_iterator = Map::const_iterator;

    // The table of section `name`, created empty when first asked for.
    ConfigTable &Section(const std::string &name);

    // The table of section `name`, or nullptr when the section doesn't exist.
    [[nodiscard]] const ConfigTable *Find(const std::string &name) const;

    void Clear() { map_.clear(); }
    [[nodiscard]] std::size_t Size() const { return map_.size(); }
    [[nodiscard]] bool Empty() const { return map_.empty(); }

    [[nodiscard]] const_iterator begin() const { return map_.begin(); }
    [[nodiscard]] const_iterator end() const { return map_.end(); }

  private:
    Map map_;
};

// Merges the plain keys of the three files into `merged`: the variant file's
// entries first, then the class file's, then the common file's. Since insertion
// never overwrites, the variant beats the class file and the class file beats the
// common file. Entries already in `merged` are kept and win over all three.
void MergeInto(ConfigTable &merged, const ConfigTable &variant, const ConfigTable &cls,
               const ConfigTable &common);
