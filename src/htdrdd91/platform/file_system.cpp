#include "htdrdd91/platform/file_system.h"

#include <new>
#include <utility>

namespace htdrdd {
namespace {

// Reading into a less aligned block can take several times as long.
constexpr std::align_val_t kAlignment{64};

} // namespace

Bytes::Bytes(std::size_t size) : data_(static_cast<char*>(::operator new(size, kAlignment))), size_(size) {}

void Bytes::Grow(std::size_t size) {
    Bytes grown(size);
    View().copy(grown.Data(), size);
    *this = std::move(grown);
}

void Bytes::Free::operator()(char* data) const noexcept { ::operator delete(data, kAlignment); }

Text BuildPath(TextView folder, TextView name) {
    Text path(folder);
    if (!path.empty() && !path.ends_with(u'/')) path += u'/';
    return path.append(name);
}

TextView FileNameOf(TextView path) noexcept { return path.substr(path.rfind(u'/') + 1); }

TextView FolderOf(TextView path) noexcept {
    const std::size_t separator = path.rfind(u'/');
    if (separator == TextView::npos) return {};
    return path.substr(0, separator == 0 ? 1 : separator);
}

} // namespace htdrdd
