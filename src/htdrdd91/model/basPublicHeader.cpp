#include "htdrdd91/model/basPublicHeader.h"

#include "htdrdd91/foundation/basError.h"

#include <array>

namespace htdrdd::basPublic {
namespace {

struct Setting {
    TextView key;
    TextView value;
};

/// Field and label texts row by row, alignments column by column.
constexpr std::array kSettings{
    Setting{u"_R1C1_FLD_TEXT", u""},  Setting{u"_R1C2_FLD_TEXT", u""},  Setting{u"_R1C3_FLD_TEXT", u""},
    Setting{u"_R2C1_FLD_TEXT", u""},  Setting{u"_R2C2_FLD_TEXT", u""},  Setting{u"_R2C3_FLD_TEXT", u""},
    Setting{u"_R3C1_FLD_TEXT", u""},  Setting{u"_R3C2_FLD_TEXT", u""},  Setting{u"_R3C3_FLD_TEXT", u""},
    Setting{u"_R1C1_LBL_TEXT", u""},  Setting{u"_R1C2_LBL_TEXT", u""},  Setting{u"_R1C3_LBL_TEXT", u""},
    Setting{u"_R2C1_LBL_TEXT", u""},  Setting{u"_R2C2_LBL_TEXT", u""},  Setting{u"_R2C3_LBL_TEXT", u""},
    Setting{u"_R3C1_LBL_TEXT", u""},  Setting{u"_R3C2_LBL_TEXT", u""},  Setting{u"_R3C3_LBL_TEXT", u""},
    Setting{u"_C1_IMG_PICTURE", u""}, Setting{u"_C2_IMG_PICTURE", u""}, Setting{u"_C3_IMG_PICTURE", u""},
    Setting{u"_R1C1_HALIGN", u"0"},   Setting{u"_R2C1_HALIGN", u"0"},   Setting{u"_R3C1_HALIGN", u"0"},
    Setting{u"_R1C2_HALIGN", u"2"},   Setting{u"_R2C2_HALIGN", u"2"},   Setting{u"_R3C2_HALIGN", u"2"},
    Setting{u"_R1C3_HALIGN", u"1"},   Setting{u"_R2C3_HALIGN", u"1"},   Setting{u"_R3C3_HALIGN", u"1"},
    Setting{u"_HEADER_COLS", u"3"},
};
static_assert(kSettings.size() == 31);

} // namespace

void InitializeHeader(const Ref<Dictionary>& oHeader) noexcept {
    try {
        oHeader->RemoveAll();
        for (const Setting& setting : kSettings) oHeader->Item(setting.key, setting.value);
    } catch (...) { ReportFailure(u"basPublic.InitializeHeader"); }
}

} // namespace htdrdd::basPublic
