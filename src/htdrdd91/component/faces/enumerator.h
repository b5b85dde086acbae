/// Enumerators. Each enumerates a copy of the items that existed when it was created.
#pragma once

#include "htdrdd91/base/dictionary.h"
#include "htdrdd91/component/values/failures.h"
#include "htdrdd91/component/values/module_reference.h"
#include "htdrdd91/component/values/values.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace htdrdd {

/// The items of a list, as its enumerator returns them.
template <class List>
[[nodiscard]] std::vector<Variant> ItemsOf(const List& list) {
    std::vector<Variant> items;
    for (const auto& item : list) items.emplace_back(item);
    return items;
}
[[nodiscard]] inline std::vector<Variant> ItemsOf(const Dictionary& dictionary) {
    return dictionary.Keys().Items();
}

/// One connection to events.
struct Connection {
    Com<IDispatch> sink;
    DWORD cookie;
};

/// Converts an item to the form that Next returns.
inline void ItemOut(VARIANT& to, const Variant& item) { ValueOut(to, item); }
inline void ItemOut(IConnectionPoint*& to, const Com<IConnectionPoint>& item) {
    to = Com<IConnectionPoint>(item).Detach();
}
inline void ItemOut(CONNECTDATA& to, const Connection& item) {
    to = {Com<IDispatch>(item.sink).Detach(), item.cookie};
}

template <class Interface, class Out, class Item>
class Enumerator final : public Counted<Enumerator<Interface, Out, Item>, Interface> {
public:
    using Items = std::shared_ptr<const std::vector<Item>>;
    static Com<Interface> Made(Items items, std::size_t next = 0) {
        return Com<Interface>(new Enumerator(std::move(items), next));
    }

    HRESULT Next(ULONG count, Out* to, ULONG* fetched) noexcept override {
        if (to == nullptr || (fetched == nullptr && count != 1)) return E_POINTER;
        ULONG given = 0;
        const HRESULT outcome = Guarded([&] {
            for (; given < count && next_ < items_->size(); ++given) ItemOut(to[given], (*items_)[next_++]);
        });
        if (fetched != nullptr) *fetched = given;
        if (FAILED(outcome)) return outcome;
        return given == count ? S_OK : S_FALSE;
    }
    HRESULT Skip(ULONG count) noexcept override {
        const std::size_t left = items_->size() - next_;
        next_ += std::min<std::size_t>(count, left);
        return count <= left ? S_OK : S_FALSE;
    }
    HRESULT Reset() noexcept override {
        next_ = 0;
        return S_OK;
    }
    HRESULT Clone(Interface** result) noexcept override {
        if (result == nullptr) return E_POINTER;
        *result = nullptr;
        return Guarded([&] { *result = Made(items_, next_).Detach(); });
    }

private:
    Enumerator(Items items, std::size_t next) noexcept : items_(std::move(items)), next_(next) {}

    Items items_;
    std::size_t next_;
    [[no_unique_address]] ModuleReference moduleReference_;
};

/// The type of an item that the interface's Next returns.
template <class Interface, class Out>
Out OutOfNext(HRESULT (Interface::*)(ULONG, Out*, ULONG*));

/// Creates an enumerator over the result of `items`.
template <class Interface, class Result, class Make>
HRESULT Enumerate(Result** result, const Make& items) noexcept {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    return Guarded([&] {
        auto made = items();
        using Item = typename decltype(made)::value_type;
        using Out = decltype(OutOfNext(&Interface::Next));
        auto shared = std::make_shared<const std::vector<Item>>(std::move(made));
        *result = Enumerator<Interface, Out, Item>::Made(std::move(shared)).Detach();
    });
}

} // namespace htdrdd
