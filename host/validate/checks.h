/// The checks that a definition goes through.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <vector>

namespace htdrdd::host {

/// Whose a scale or a scaled score is.
enum class Owner { None, Definition, Objectives, Objective };

struct Check {
    const char* id = nullptr; ///< as scripts know it
    const char* name = nullptr;
    Owner owner = Owner::None;
    std::int32_t objective = 0; ///< position of the learning objective that is the owner
};

/// Takes what checks find, while they run.
class Report {
public:
    virtual void Begin(const Check& check) = 0;
    /// A check that can't be brought to its end gives a last finding, which has neither rule nor caption.
    virtual void Find(const Finding& finding) = 0;
    virtual void End() = 0;

protected:
    ~Report() = default;
};

/// Runs the checks that fit the definition. Each ends with its first finding unless bAll is set. Whether none
/// found anything.
[[nodiscard]] bool RunChecks(const Ref<clsHTDRDD>& definition, bool bAll, Report& report);

/// One part of where a rule is broken.
struct Place {
    const char* id; ///< as scripts know it
    const char* noun;
    std::int32_t lPosition;
    Text name;           ///< perhaps empty
    bool isOnly = false; ///< there are no others that it could be
};

[[nodiscard]] std::vector<Place> PlacesOf(const clsHTDRDD& definition, const Offender& offender);

} // namespace htdrdd::host
