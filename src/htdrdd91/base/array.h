/// Arrays that carry their lower bound, and the arrays of delimited texts.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace htdrdd {

/// An array with its own lower bound. An array without storage differs from an empty array: a query for its
/// bounds fails with 9.
template <class T>
class Array {
public:
    Array() = default;
    /// Fails with 6 if the upper bound would leave the range of positions.
    explicit Array(std::vector<T> items, std::int32_t lowerBound = 0, Where at = Where::current())
        : items_(std::move(items)), lowerBound_(lowerBound), hasStorage_(true) {
        const auto largest = static_cast<std::uint64_t>(std::int64_t{INT32_MAX} - lowerBound);
        if (items_.size() > largest) throw Failure(Err::Overflow, at);
    }

    [[nodiscard]] bool HasStorage() const noexcept { return hasStorage_; }
    [[nodiscard]] std::int32_t LowerBound(Where at = Where::current()) const {
        Demand(hasStorage_, at);
        return lowerBound_;
    }
    /// The lower bound minus 1 if there are no elements.
    [[nodiscard]] std::int32_t UpperBound(Where at = Where::current()) const {
        Demand(hasStorage_, at);
        return lowerBound_ + static_cast<std::int32_t>(items_.size()) - 1;
    }
    [[nodiscard]] typename std::vector<T>::const_reference At(std::int32_t index,
                                                              Where at = Where::current()) const {
        return items_[Offset(index, at)];
    }
    [[nodiscard]] typename std::vector<T>::reference At(std::int32_t index, Where at = Where::current()) {
        return items_[Offset(index, at)];
    }
    /// The elements in order, regardless of their bounds.
    [[nodiscard]] const std::vector<T>& Items() const noexcept { return items_; }
    [[nodiscard]] std::vector<T>& Items() noexcept { return items_; }

private:
    static void Demand(bool condition, Where at) {
        if (!condition) throw Failure(Err::Subscript, at);
    }
    [[nodiscard]] std::size_t Offset(std::int32_t index, Where at) const {
        const std::int64_t offset = std::int64_t{index} - lowerBound_;
        Demand(offset >= 0 && offset < static_cast<std::int64_t>(items_.size()), at);
        return static_cast<std::size_t>(offset);
    }

    std::vector<T> items_;
    std::int32_t lowerBound_ = 0;
    bool hasStorage_ = false;
};

/// The pieces as an array from 0. An empty text yields an array with storage and no elements.
[[nodiscard]] Array<Text> Split(TextView text, TextView delimiter);
/// The elements in order with the delimiter between them. Empty for an array without storage.
[[nodiscard]] Text Join(const Array<Text>& pieces, TextView delimiter);

} // namespace htdrdd
