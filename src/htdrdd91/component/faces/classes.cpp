#include "htdrdd91/component/faces/classes.h"

#include "htdrdd91/component/values/objects.h"
#include "htdrdd91/foundation/version.h"

#include <algorithm>

namespace htdrdd {

const ClassRow* FindClass(TextView name) noexcept {
    const std::size_t point = kLibraryName.size();
    if (name.size() > point && name[point] == u'.' && SameText(name.substr(0, point), kLibraryName))
        name.remove_prefix(point + 1);
    const auto classes = Classes();
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [name](const ClassRow& row) { return SameText(row.name, name); });
    return found != classes.end() ? &*found : nullptr;
}

IDispatch& FaceOf(Object& object) {
    auto& slot = object.Face();
    if (!slot) {
        const ClassRow* const row = FindClass(object.ClassName());
        if (row == nullptr) throw Failure(Err::TypeMismatch);
        slot = row->face(object, *row);
    }
    return static_cast<ObjectFace&>(*slot).Dispatch();
}

} // namespace htdrdd
