/// Everything that a C++ host needs: the document and its parts, the libraries of scales and scaled scores,
/// the base class of host objects, the region, and the walks over the rules for hosts that need more than the
/// first finding.
#pragma once

#include "htdrdd91/base/region.h"
#include "htdrdd91/foundation/ErrorHost.h"
#include "htdrdd91/foundation/version.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/grade_scales/grade_scale_rules.h"
#include "htdrdd91/model/basPublicAnswers.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"
#include "htdrdd91/scaled_scores/scaled_score_rules.h"
#include "htdrdd91/validation/key_rules.h"
#include "htdrdd91/validation/subtest_rules.h"
#include "htdrdd91/validation/version_rules.h"
