/// The checks of a definition.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <vector>

namespace htdrdd::host {

/// The owner of a grade scale or a scaled score.
enum class Owner { None, Definition, Objectives, Objective };

struct Check {
    const char* id = nullptr; ///< for scripts
    const char* name = nullptr;
    Owner owner = Owner::None;
    std::int32_t objective = 0; ///< position of the learning objective that is the owner
};

/// Receives the findings of the checks while they run.
class Report {
public:
    virtual void Begin(const Check& check) = 0;
    /// A check that fails ends with a finding without a rule and a caption.
    virtual void Find(const Finding& finding) = 0;
    virtual void End() = 0;

protected:
    ~Report() = default;
};

/// Runs the checks that apply to the definition. Each check ends with its first finding unless bAll is set.
/// Returns whether there are no findings.
[[nodiscard]] bool RunChecks(const Ref<clsHTDRDD>& definition, bool bAll, Report& report);

/// One part of the place of an offender.
struct Place {
    const char* id; ///< for scripts
    const char* noun;
    std::int32_t lPosition;
    Text name;           ///< may be empty
    bool isOnly = false; ///< the only one of its kind
};

[[nodiscard]] std::vector<Place> PlacesOf(const clsHTDRDD& definition, const Offender& offender);

} // namespace htdrdd::host
