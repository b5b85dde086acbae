#include "htdrdd91/component/faces/face.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"

namespace htdrdd {
namespace {

template <class Class>
Ref<Object> MakeObject() {
    return Make<Class>();
}
template <class Face, class Class>
std::unique_ptr<ObjectFace> MakeFace(Object& object, const ClassRow& row) {
    return std::make_unique<Face>(static_cast<Class&>(object), row);
}
template <auto Raised>
Event& EventOf(Object& object) {
    return [&]<class Class>(Event Class::*event) -> Event& {
        return static_cast<Class&>(object).*event;
    }(Raised);
}

#include "htdrdd91/component/faces.inc"

} // namespace

std::span<const ClassRow> Classes() noexcept { return kClasses; }

TextView TypeLibraryVersion() noexcept { return kListedTypeLibraryVersion; }

} // namespace htdrdd
