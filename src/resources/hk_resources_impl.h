// The members of HkResources<T> that reach into the vessel: its configuration
// tables, its configuration level and its value pools. Included by the vessel's
// header once the vessel class is complete.
#pragma once

#include <algorithm>

#include "config/text_ops.h"
#include "frame/hullkit.h"
#include "resources/hk_resources.h"

template <class T> void HkResources<T>::WriteResMods(FILEHANDLE scenario, std::vector<std::string> *lines) {
    modsText.clear();
    for (const std::string &name : names)
        if (T *record = Find(name)) {
            const std::string text = owner->ModificationText(name, record);
            if (!text.empty())
                modsText += name + ":" + text + " ";
        }
    if (modsText.empty())
        return;
    modsText = sectionName + " " + modsText;
    owner->EmitScenarioLine(scenario, lines, "RES_MODS", modsText);
}

template <class T> void HkResources<T>::ApplyMods() {
    std::size_t begin = 0;
    while (begin < modsText.size()) {
        std::size_t end = modsText.find(' ', begin);
        if (end == std::string::npos)
            end = modsText.size();
        const std::string item = modsText.substr(begin, end - begin);
        begin = end + 1;
        if (item.empty())
            continue;
        const std::size_t colon = item.find(':');
        const std::string name = item.substr(0, colon);
        const std::string value = colon == std::string::npos ? std::string() : item.substr(colon + 1);
        if (T *record = Find(name))
            owner->ApplyRecordMods(name, value, record);
    }
}

template <class T>
void HkResources<T>::WriteResourceLines(FILEHANDLE scenario, std::vector<std::string> *lines) {
    for (const std::string &line : scenarioLines)
        owner->EmitScenarioLine(scenario, lines, "RESOURCE", sectionName + " " + line);
}

template <class T> std::string HkResources<T>::DecodeString(std::string token) {
    if (token == "NONE" || token == "NEW")
        return std::string();
    return token;
}

template <class T> int32_t HkResources<T>::DecodeInt(std::string token) { return DecodeIntKeyword(token); }

template <class T>
void HkResources<T>::DecodeCustomField(char, const std::vector<std::string> &, int32_t &, int32_t &) {}

template <class T> void HkResources<T>::Init(HULLKIT *vessel) {
    owner = vessel;
    if (!owner)
        return;
    if (sectionName.empty())
        ReadHeader();
    owner->configLevel = 0;
    FillLevel(owner->cfgCommon, owner->secCommon);
    owner->configLevel = 1;
    FillLevel(owner->cfgClass, owner->secClass);
    owner->configLevel = 2;
    FillLevel(owner->cfgVariant, owner->secVariant);
}

// The header is a plain key of the common file, or else of the class file.
template <class T> void HkResources<T>::ReadHeader() {
    const std::string *header = owner->cfgCommon.Find(typeName);
    if (!header || header->empty())
        header = owner->cfgClass.Find(typeName);
    if (!header || header->empty())
        return;
    RecordLayout layout = ParseRecordLayout(*header);
    prefix = std::move(layout.prefix);
    sectionName = std::move(layout.sectionName);
    fields = std::move(layout.fields);
}

// A level's section lines come first, in file order, then its numbered plain
// keys up to the first missing number.
template <class T> void HkResources<T>::FillLevel(const ConfigTable &plain, const SectionTable &sections) {
    // Without a header the table stays empty.
    if (sectionName.empty())
        return;
    if (const ConfigTable *section = sections.Find(sectionName))
        for (const auto &[name, value] : *section)
            AddRecord(name, SplitQuoted(value));
    for (int number = 0;; ++number) {
        const std::string *line = plain.Find(prefix + std::to_string(number));
        if (!line)
            break;
        AddLine(*line, false);
    }
}

template <class T> void HkResources<T>::AddLine(const std::string &line, bool keep) {
    std::vector<std::string> tokens = SplitQuoted(line);
    std::string name = tokens.empty() ? std::string() : tokens.front();
    if (!tokens.empty())
        tokens.erase(tokens.begin());
    AddRecord(name, std::move(tokens));
    if (keep)
        scenarioLines.push_back(line);
}

template <class T> void HkResources<T>::AddResourceLine(const std::string &line, bool keep) {
    std::string work = line;
    NormaliseLine(work);
    ExpandMacros(work);
    AddLine(work, keep);
}

template <class T> void HkResources<T>::AddRecord(const std::string &name, std::vector<std::string> tokens) {
    // A table whose header wasn't found holds no records.
    if (sectionName.empty())
        return;
    if (!tokensByName.contains(name)) {
        names.push_back(name);
        levels.push_back(owner ? owner->configLevel : 0);
    }
    tokens.insert(tokens.begin(), name);
    tokensByName[name] = std::move(tokens);
}

template <class T> void HkResources<T>::CreateAll() {
    if (!owner)
        return;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string name = names[i];
        CreateRecord(name);
    }
}

// A record is filled in place: a record created before keeps its address.
template <class T> void HkResources<T>::CreateRecord(const std::string &name) {
    auto tokens = tokensByName.find(name);
    if (!owner || tokens == tokensByName.end())
        return;
    indicesByName[name] = Compile(tokens->second);
    T &record = records.try_emplace(name).first->second;
    ParseRecord(name, &record);
}

// Walks the fields and the tokens together. Each field pushes its value on the
// pool of its kind and records the value's index; the walk ends with the
// fields or with the tokens.
template <class T> std::vector<int32_t> HkResources<T>::Compile(const std::vector<std::string> &tokens) {
    std::vector<int32_t> indices;
    int32_t t = 0;
    int32_t p = 0;
    auto last = [](const auto &pool) { return static_cast<int32_t>(pool.size() - 1); };
    for (std::size_t f = 0; f < fields.size() && t >= 0 && static_cast<std::size_t>(t) < tokens.size();
         ++f, ++t) {
        const std::size_t at = static_cast<std::size_t>(t);
        switch (fields[f].type) {
        case 'S':
            owner->stringPool.push_back(DecodeString(tokens[at]));
            p = last(owner->stringPool);
            break;
        case 'I':
            owner->intPool.push_back(DecodeInt(tokens[at]));
            p = last(owner->intPool);
            break;
        case 'D':
            owner->doublePool.push_back(TokenDouble(tokens[at]));
            p = last(owner->doublePool);
            break;
        case 'V':
            owner->vectorPool.push_back(TokenVector(tokens, at));
            p = last(owner->vectorPool);
            t += 2;
            break;
        case 'P':
            owner->particlePool.push_back(TokenParticleSpec(tokens, at));
            p = last(owner->particlePool);
            t += 14;
            break;
        case 'A': {
            // Only animation components name mesh groups by label; the mesh is
            // the line's third token.
            const std::string &mesh = TokenAt(tokens, 2);
            owner->intListPool.push_back(
                TokenIntList(tokens, at, sectionName == "ANIMATIONS", [&](const std::string &label) {
                    return owner->ResolveGroupLabel(mesh, label);
                }));
            p = last(owner->intListPool);
            break;
        }
        default:
            DecodeCustomField(fields[f].type, tokens, t, p);
            break;
        }
        indices.push_back(p);
    }
    return indices;
}

template <class T> T *HkResources<T>::Find(const char *name) {
    if (!name)
        return nullptr;
    auto it = records.find(name);
    return it == records.end() ? nullptr : &it->second;
}

template <class T> T *HkResources<T>::Find(std::string name) {
    auto it = records.find(name);
    return it == records.end() ? nullptr : &it->second;
}

template <class T> T *HkResources<T>::At(int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= names.size())
        return nullptr;
    // Looked up without a copy of the name: steps walk the tables by index.
    auto it = records.find(names[static_cast<std::size_t>(index)]);
    return it == records.end() ? nullptr : &it->second;
}

template <class T> const std::string &HkResources<T>::NameAt(int32_t index) const {
    static const std::string none;
    if (index < 0 || static_cast<std::size_t>(index) >= names.size())
        return none;
    return names[static_cast<std::size_t>(index)];
}

template <class T> int32_t HkResources<T>::IndexOf(const std::string &name) const {
    auto it = std::find(names.begin(), names.end(), name);
    return it == names.end() ? -1 : static_cast<int32_t>(it - names.begin());
}

// The key's position in the header selects the record's pool index; a key
// absent from the header, or beyond what the line reached, selects element 0.
template <class T>
std::size_t HkResources<T>::PoolIndex(const std::string &name, const std::string &key) const {
    auto indices = indicesByName.find(name);
    if (indices == indicesByName.end())
        return 0;
    for (std::size_t f = 0; f < fields.size(); ++f)
        if (fields[f].name == key)
            return f < indices->second.size() ? static_cast<std::size_t>(indices->second[f]) : 0;
    return 0;
}

namespace hk_resources_detail {
// The pool element at `index`, or element 0 when the index lies outside; a
// value-initialised element for a table without a vessel.
template <class Pool> typename Pool::value_type PoolValue(const Pool *pool, std::size_t index) {
    if (!pool || pool->empty())
        return typename Pool::value_type{};
    return (*pool)[index < pool->size() ? index : 0];
}
} // namespace hk_resources_detail

template <class T>
std::string HkResources<T>::GetString(const std::string &name, const std::string &key) const {
    return hk_resources_detail::PoolValue(owner ? &owner->stringPool : nullptr, PoolIndex(name, key));
}

template <class T> int32_t HkResources<T>::GetInt(const std::string &name, const std::string &key) const {
    return hk_resources_detail::PoolValue(owner ? &owner->intPool : nullptr, PoolIndex(name, key));
}

template <class T> double HkResources<T>::GetDouble(const std::string &name, const std::string &key) const {
    return hk_resources_detail::PoolValue(owner ? &owner->doublePool : nullptr, PoolIndex(name, key));
}

template <class T> VECTOR3 HkResources<T>::GetVector(const std::string &name, const std::string &key) const {
    return hk_resources_detail::PoolValue(owner ? &owner->vectorPool : nullptr, PoolIndex(name, key));
}

template <class T>
PARTICLESTREAMSPEC HkResources<T>::GetParticleSpec(const std::string &name, const std::string &key) const {
    return hk_resources_detail::PoolValue(owner ? &owner->particlePool : nullptr, PoolIndex(name, key));
}

template <class T>
std::vector<int32_t> HkResources<T>::GetIntList(const std::string &name, const std::string &key) const {
    return hk_resources_detail::PoolValue(owner ? &owner->intListPool : nullptr, PoolIndex(name, key));
}
