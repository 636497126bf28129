// The animation component record: its mesh groups, its transform on the mesh,
// and its place in a host animation, new or joined, under a parent or not.
#include <memory>

#include "frame/hullkit.h"

namespace {

// The transform of the record's type on a mesh; null for an unknown type.
std::unique_ptr<MGROUP_TRANSFORM> MakeTransform(ANIM_REC &r, UINT mesh) {
    const UINT count = static_cast<UINT>(r.groupCount);
    switch (r.type) {
    case 1: {
        auto rotate = std::make_unique<MGROUP_ROTATE>(mesh, r.groupArray, count, r.vec1, r.vec2,
                                                      static_cast<float>(r.deg * PI / 180.0));
        r.rotate = rotate.get();
        return rotate;
    }
    case 2: {
        auto translate = std::make_unique<MGROUP_TRANSLATE>(mesh, r.groupArray, count, r.vec1);
        r.translate = translate.get();
        return translate;
    }
    case 3: {
        auto scale = std::make_unique<MGROUP_SCALE>(mesh, r.groupArray, count, r.vec1, r.vec2);
        r.scale = scale.get();
        return scale;
    }
    default:
        return nullptr;
    }
}

} // namespace

template <> void HkResources<ANIM_REC>::ParseRecord(std::string name, ANIM_REC *record) {
    record->name = name;
    record->type = GetInt(name, "Type");
    record->mesh = GetString(name, "Mesh");
    record->vec1 = GetVector(name, "Vec1");
    record->vec2 = GetVector(name, "Vec2");
    record->deg = GetDouble(name, "Deg");
    record->from = GetDouble(name, "From");
    record->to = GetDouble(name, "To");
    record->start = GetDouble(name, "Start");
    record->existing = GetString(name, "Existing");
    record->parent = GetString(name, "Parent");
    record->groups = GetIntList(name, "Groups");
    owner->StoreAnimGroups(record);

    // Without its mesh, or with an unknown type, the record has no transform
    // and adds no component; its animation still exists for the controllers.
    record->rotate = nullptr;
    record->translate = nullptr;
    record->scale = nullptr;
    const MESH_REC *mesh = owner->MeshTable.Find(record->mesh);
    record->transform = mesh ? MakeTransform(*record, mesh->index) : nullptr;

    // `Existing` and `Parent` name records made before this one; any other
    // name, the record's own included, is passed over.
    const ANIM_REC *existing = Find(record->existing);
    if (existing && existing != record)
        record->animation = existing->animation;
    else
        record->animation = owner->CreateAnimation(record->start);

    const ANIM_REC *parent = Find(record->parent);
    ANIMATIONCOMPONENT_HANDLE parentComponent = parent && parent != record ? parent->component : nullptr;
    record->component = nullptr;
    if (record->transform)
        record->component = owner->AddAnimationComponent(record->animation, record->from, record->to,
                                                         record->transform.get(), parentComponent);
}
