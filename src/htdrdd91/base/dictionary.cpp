#include "htdrdd91/base/dictionary.h"

#include <bit>
#include <utility>

namespace htdrdd {
namespace {

void DemandHeld(const Variant& item, Where at) {
    if (item.Is() == Variant::Kind::Other) throw Failure(Err::TypeMismatch, at);
}

} // namespace

/// The normal form of a key: equal keys have the same normal form.
Text Dictionary::Normal(const Variant& key, Where at) const {
    if (const Text* text = key.AsText()) return u't' + (mode_ == Compare::IgnoreCase ? Folded(*text) : *text);
    if (key.AsObject() != nullptr) throw Failure(Err::Argument, at);
    const double number = key.ToDouble(at);
    Text normal = u"n";
    for (auto bits = std::bit_cast<std::uint64_t>(number == 0 ? 0.0 : number); bits != 0; bits >>= 16)
        normal += static_cast<char16_t>(bits & 0xFFFF);
    return normal;
}

std::size_t Dictionary::Find(const Text& normal) const {
    const auto found = slots_.find(normal);
    return found != slots_.end() ? found->second : kNone;
}

std::size_t Dictionary::Append(Text normal, const Variant& key, Variant item) {
    const std::size_t slot = entries_.size();
    entries_.push_back({key, std::move(item)});
    try {
        slots_.emplace(std::move(normal), slot);
    } catch (...) {
        entries_.pop_back();
        throw;
    }
    return slot;
}

void Dictionary::CompareMode(Compare mode, Where at) {
    if (!entries_.empty()) throw Failure(Err::Argument, at);
    mode_ = mode;
}

void Dictionary::Add(const Variant& key, Variant item, Where at) {
    DemandHeld(item, at);
    Text normal = Normal(key, at);
    if (Find(normal) != kNone) throw Failure(Err::KeyInUse, at);
    Append(std::move(normal), key, std::move(item));
}

const Variant& Dictionary::Item(const Variant& key, Where at) {
    Text normal = Normal(key, at);
    std::size_t slot = Find(normal);
    if (slot == kNone) slot = Append(std::move(normal), key, Variant::Empty());
    return entries_[slot].item;
}

void Dictionary::Item(const Variant& key, Variant item, Where at) {
    DemandHeld(item, at);
    Text normal = Normal(key, at);
    if (const std::size_t slot = Find(normal); slot != kNone)
        std::swap(entries_[slot].item, item); // the old item ends last: its destructor may call back into
                                              // this dictionary
    else
        Append(std::move(normal), key, std::move(item));
}

void Dictionary::Key(const Variant& key, const Variant& newKey, Where at) {
    const Text before = Normal(key, at);
    Text after = Normal(newKey, at);
    const std::size_t slot = Find(before);
    if (slot == kNone) throw Failure(Err::NotFound, at);
    if (const std::size_t other = Find(after); other != kNone && other != slot)
        throw Failure(Err::KeyInUse, at);
    Variant spelling = newKey;
    slots_.emplace(after, slot);
    if (after != before) slots_.erase(before);
    entries_[slot].key = std::move(spelling);
}

bool Dictionary::Exists(const Variant& key, Where at) const { return Find(Normal(key, at)) != kNone; }

void Dictionary::Remove(const Variant& key, Where at) {
    const Text normal = Normal(key, at);
    const std::size_t slot = Find(normal);
    if (slot == kNone) throw Failure(Err::NotFound, at);
    slots_.erase(normal);
    const Entry ended = std::move(entries_[slot]);
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(slot));
    for (auto& [text, place] : slots_)
        if (place > slot) --place;
}

Array<Variant> Dictionary::Keys() const {
    std::vector<Variant> keys;
    for (const Entry& entry : entries_) keys.push_back(entry.key);
    return Array<Variant>(std::move(keys));
}

Array<Variant> Dictionary::Items() const {
    std::vector<Variant> items;
    for (const Entry& entry : entries_) items.push_back(entry.item);
    return Array<Variant>(std::move(items));
}

void Dictionary::RemoveAll() noexcept {
    slots_.clear();
    const auto ended = std::exchange(entries_, {});
}

} // namespace htdrdd
