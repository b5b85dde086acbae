#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/exchange_file.h"
#include "htdrdd91/scaled_scores/scaled_score_members.h"

namespace htdrdd {
namespace {

using Form = ScaledScoreRow::Form;

constexpr TextView kFileType = u"ScaledScore";

bool SameKey(TextView a, TextView b) noexcept { return SameText(a, b); }

/// In exchange files a number that rounds to 0 is false.
bool IsTrue(TextView value, Where at) { return Rounded<std::int32_t>(LeadingNumber(value, at), at) != 0; }

} // namespace

Text clsHTDRDDScaledScore::ToString(TextView sDelimiter) const noexcept {
    Text result;
    try {
        const auto self = Held(*this);
        Text pair;
        for (const ScaledScoreRow& row : kScaledScoreMembers) {
            pair.assign(row.key) += u'=';
            row.append(pair, *this, Where::current());
            if (&row != &kScaledScoreMembers.back()) pair += sDelimiter;
            result += pair;
        }
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.ToString"); }
    return result;
}

bool clsHTDRDDScaledScore::FromString(TextView sScaledScore, TextView sDelimiter) noexcept {
    bool result = false;
    try {
        ScaledScorePairs<SameKey> pairs{Ref(this)};
        const Text text(sScaledScore); // both may refer to members that change now
        const Text delimiter(sDelimiter);
        Clear();
        EachPiece(text, delimiter, [&](TextView piece) {
            const std::size_t equals = piece.find(u'=');
            if (equals != TextView::npos)
                pairs.Take(piece.substr(0, equals), Trimmed(piece.substr(equals + 1)));
        });
        pairs.Decipher();
        result = true;
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.FromString"); }
    return result;
}

bool clsHTDRDDScaledScore::Export(TextView sFileName) const noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        ExchangeWriter file(kFileType);
        Text value;
        for (const ScaledScoreRow& row : kScaledScoreMembers) {
            value.clear();
            row.append(value, *this, Where::current());
            file.Xml().Attribute(row.attribute, value);
        }
        result = file.Save(sFileName);
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.Export"); }
    return result;
}

bool clsHTDRDDScaledScore::Import(TextView sFileName) noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        const ExchangeReader file(sFileName, kFileType);
        const XmlNode content = file.Content();
        if (!content) return false;
        Clear();
        bool unicode = false;
        for (const ScaledScoreRow& row : kScaledScoreMembers) {
            const auto value = content.Attribute(row.attribute);
            if (!value) continue;
            switch (row.form) {
            case Form::Mark: unicode = IsTrue(*value, Where::current()); break;
            case Form::Flag:
                row.put(*this, IsTrue(*value, Where::current()) ? u"-1" : u"0", Where::current());
                break;
            case Form::Enciphered: row.put(*this, basPublic::Decrypt(*value), Where::current()); break;
            case Form::Plain: row.put(*this, *value, Where::current()); break;
            }
        }
        if (unicode) {
            DB->User = basPublic::HexToUnicode(DB->User);
            DB->Password = basPublic::HexToUnicode(DB->Password);
            DB->Connect = basPublic::HexToUnicode(DB->Connect);
        }
        result = true;
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.Import"); }
    return result;
}

} // namespace htdrdd
