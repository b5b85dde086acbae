/// Test cases as rows of text, and the conditions under which they are checked.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/number.h"
#include "htdrdd91/base/region.h"
#include "htdrdd91/platform/encoding.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace htdrdd::test {

using Fields = std::vector<Text>;

/// Checks a row such as "text -> another -> result". `tell` returns the result for the fields before it.
template <class Tell>
void CheckRow(TextView row, Tell tell) {
    const Fields fields = Split(row, u" -> ").Items();
    EXPECT_EQ(tell(fields), fields.back()) << ToUtf8(row);
}
template <class Tell>
void Check(std::initializer_list<TextView> rows, Tell tell) {
    for (const TextView row : rows) CheckRow(row, tell);
}
/// The rows are the lines of tests/words/NAME.txt.
template <class Tell>
void CheckWords(const std::string& name, Tell tell) {
    for (const std::string& row : Words(name)) CheckRow(FromUtf8(row), tell);
}

/// The number of the failure that a statement throws; 0 if it doesn't fail.
template <class Statement>
std::int32_t FailureOf(Statement statement) {
    try {
        statement();
    } catch (const Failure& failure) { return failure.Number(); }
    return 0;
}

/// The number that a statement returns, or "failure" and the failure's number.
template <class Statement>
Text Outcome(Statement statement) {
    try {
        return InvariantText(static_cast<double>(statement()));
    } catch (const Failure& failure) { return u"failure " + DecimalText(failure.Number()); }
}

inline Region CommaRegion() { return {u',', u'.', u"€", "%d.%m.%Y %H:%M:%S"}; }

/// Sets this thread's region during the object's lifetime.
class ScopedRegion {
public:
    explicit ScopedRegion(Region region) : before_(std::exchange(CurrentRegion(), std::move(region))) {}
    ScopedRegion(const ScopedRegion&) = delete;
    ScopedRegion& operator=(const ScopedRegion&) = delete;
    ~ScopedRegion() { CurrentRegion() = before_; }

private:
    Region before_;
};

/// The results of a statement with a point and with a comma as the decimal mark: "1.5 / 15".
template <class Statement>
Text InBothRegions(Statement statement) {
    Text both;
    for (const Region& region : {Region(), CommaRegion()}) {
        const ScopedRegion scope(region);
        both += (both.empty() ? u"" : u" / ") + statement();
    }
    return both;
}

} // namespace htdrdd::test
