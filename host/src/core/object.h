// Every object of the simulated world that a handle can name.
#pragma once

#include <string>

#include "OrbiterAPI.h"

namespace hullhost {

enum class ObjectKind { Body, Vessel };

class Object {
  public:
    Object(ObjectKind kind, std::string name) : kind_(kind), name_(std::move(name)) {}
    virtual ~Object() = default;
    Object(const Object &) = delete;
    Object &operator=(const Object &) = delete;

    ObjectKind Kind() const { return kind_; }
    const std::string &Name() const { return name_; }
    void Rename(std::string name) { name_ = std::move(name); }

    OBJHANDLE Handle() { return reinterpret_cast<OBJHANDLE>(this); }

    // Global frame: the Sun at the origin, ecliptic axes, left-handed.
    VECTOR3 pos{0, 0, 0};
    VECTOR3 vel{0, 0, 0};

  private:
    ObjectKind kind_;
    std::string name_;
};

} // namespace hullhost
