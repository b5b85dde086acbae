/// Cases as rows of text, and what they are checked under.
#pragma once

#include "platform/number.h"
#include "platform/region.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace htdrdd::test {

/// The fields of a row: "text -> result -> another".
inline std::vector<Text> Fields(TextView row) { return Split(row, u" -> ").Items(); }

/// Number of the failure that a statement ends in, 0 where it doesn't fail.
template <class Statement>
std::int32_t FailureOf(Statement statement) {
    try {
        statement();
    } catch (const Failure& failure) { return failure.Number(); }
    return 0;
}

/// The number that a statement gives, or "failure" and its number.
template <class Statement>
Text Outcome(Statement statement) {
    try {
        return InvariantText(static_cast<double>(statement()));
    } catch (const Failure& failure) { return u"failure " + DecimalText(failure.Number()); }
}

inline Region PointRegion() { return {}; }
inline Region CommaRegion() { return {u',', u'.', u"€", "%d.%m.%Y %H:%M:%S"}; }

/// This thread's region for as long as it lives.
class ScopedRegion {
public:
    explicit ScopedRegion(Region region) : before_(std::exchange(CurrentRegion(), std::move(region))) {}
    ScopedRegion(const ScopedRegion&) = delete;
    ScopedRegion& operator=(const ScopedRegion&) = delete;
    ~ScopedRegion() { CurrentRegion() = before_; }

private:
    Region before_;
};

} // namespace htdrdd::test
