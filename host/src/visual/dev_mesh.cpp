#include "dev_mesh.h"

#include <algorithm>

namespace hullhost {

void DevMesh::ResetGeometry() {
    for (size_t i = 0; i < groups.size() && i < templ_->groups.size(); ++i) {
        const auto &src = templ_->groups[i].vertices;
        auto &dst = groups[i].vertices;
        if (src.size() == dst.size())
            std::copy(src.begin(), src.end(), dst.begin());
    }
}

int EditGroupFlags(MeshGroup &group, const GROUPEDITSPEC *edit) {
    if (!edit)
        return 1;
    if (edit->flags & GRPEDIT_SETUSERFLAG)
        group.userFlag = edit->UsrFlag;
    if (edit->flags & GRPEDIT_ADDUSERFLAG)
        group.userFlag |= edit->UsrFlag;
    if (edit->flags & GRPEDIT_DELUSERFLAG)
        group.userFlag &= ~edit->UsrFlag;
    return 0;
}

} // namespace hullhost
