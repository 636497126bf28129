#include "config/config_table.h"

#include <initializer_list>

bool ConfigTable::Insert(const std::string &key, const std::string &value) {
    return map_.try_emplace(key, value).second;
}

const std::string *ConfigTable::Find(const std::string &key) const {
    const auto it = map_.find(key);
    return it == map_.end() ? nullptr : &it->second;
}

const std::string &ConfigTable::Get(const std::string &key) { return map_.try_emplace(key).first->second; }

ConfigTable &SectionTable::Section(const std::string &name) { return map_.try_emplace(name).first.value(); }

const ConfigTable *SectionTable::Find(const std::string &name) const {
    const auto it = map_.find(name);
    return it == map_.end() ? nullptr : &it->second;
}

void MergeInto(ConfigTable &merged, const ConfigTable &variant, const ConfigTable &cls,
               const ConfigTable &common) {
    for (const ConfigTable *level : {&variant, &cls, &common}) {
        for (const auto &[key, value] : *level) {
            merged.Insert(key, value);
        }
    }
}
