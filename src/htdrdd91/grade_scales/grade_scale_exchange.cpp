#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/exchange_file.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"

namespace htdrdd {
namespace {

constexpr TextView kFileType = u"GradeScale";

Ref<clsHTDRDDGradeScaleItem> RowOf(const XmlNode& node, Where at = Where::current()) {
    if (!node.IsElement()) throw Failure(Err::NotSet, at); // this is meant: only elements have attributes
    auto row = Make<clsHTDRDDGradeScaleItem>();
    row->Grade = node.Attribute(u"Grade").value_or(Text());
    if (const auto startValue = node.Attribute(u"StartValue"))
        row->StartValue = RegionalText(LeadingNumber(*startValue, at));
    return row;
}

} // namespace

bool clsHTDRDDGradeScale::Export(TextView sFileName) const noexcept {
    bool result = false;
    try {
        ExchangeWriter file(kFileType);
        XmlWriter& xml = file.Xml();
        xml.Attribute(u"Name", ScaleName);
        for (const auto& row : mItems) {
            xml.Begin(u"ScaleItem");
            xml.Attribute(u"Grade", row->Grade);
            xml.Attribute(u"StartValue", row->StartValue);
            xml.End();
        }
        result = file.Save(sFileName);
    } catch (...) { ReportFailure(u"clsHTDRDDGradeScale.Export"); }
    return result;
}

bool clsHTDRDDGradeScale::Import(TextView sFileName) noexcept {
    bool result = false;
    try {
        const ExchangeReader file(sFileName, kFileType);
        const XmlNode content = file.Content();
        if (!content) return false;
        ScaleName.clear();
        RemoveAll();
        ScaleName = content.Attribute(u"Name").value_or(Text());
        for (XmlNode node = content.FirstChild(); node; node = node.NextSibling()) Add(RowOf(node));
        result = true;
    } catch (...) { ReportFailure(u"clsHTDRDDGradeScale.Import"); }
    return result;
}

} // namespace htdrdd
