/// All that a C++ host needs: the document and everything it owns, the libraries of scales and scaled scores,
/// the base class of host objects, the region, and the walks over the rules for hosts that want more than the
/// first finding.
#pragma once

#include "foundation/ErrorHost.h"
#include "foundation/version.h"
#include "grade_scales/clsHTDGradeScaleManager.h"
#include "grade_scales/grade_scale_rules.h"
#include "model/basPublicAnswers.h"
#include "model/clsHTDRDD.h"
#include "platform/region.h"
#include "scaled_scores/clsHTDScaledScoreManager.h"
#include "scaled_scores/scaled_score_rules.h"
#include "validation/key_rules.h"
#include "validation/subtest_rules.h"
#include "validation/version_rules.h"
