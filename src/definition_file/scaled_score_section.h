/// Scaled scores: the sections [ScaledScore] and [SubtestScaledScore] of older files, and the same keys in
/// [Subtest].
#pragma once

#include "definition_file/section_lines.h"
#include "scaled_scores/scaled_score_members.h"

namespace htdrdd::basTemplate {

/// The keys of a scaled score, which go to the record at once. The record is held: a report may make the host
/// replace it.
class ScaledScoreKeys {
public:
    explicit ScaledScoreKeys(Ref<clsHTDRDDScaledScore> score) : score_(std::move(score)) {}
    /// False for a key of something else.
    bool Take(const SectionLines::Pair& pair, Where at = Where::current());
    /// Deciphers what stood enciphered in the section; to be called at its end.
    void Decipher() const { DecipherConnection(*score_, unicode_); }

private:
    Ref<clsHTDRDDScaledScore> score_;
    RowFinder<ScaledScoreRow, kScaledScoreMembers.size()> finder_{kScaledScoreMembers};
    bool unicode_ = false;
};

/// Fills a scaled score. False after a failure, which is reported; what was read before stays.
[[nodiscard]] bool VB_RT_read_scaled_score(SectionLines& lines, clsHTDRDDScaledScore& oScaledScore) noexcept;

/// Writes the keys, the connection's secrets enciphered.
void WriteScaledScoreKeys(TextWriter& out, const clsHTDRDDScaledScore& oScaledScore,
                          Where at = Where::current());

} // namespace htdrdd::basTemplate
