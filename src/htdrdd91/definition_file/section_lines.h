/// The lines of a definition, for section readers.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/platform/text_stream.h"

namespace htdrdd::basTemplate {

/// Walks the lines of a definition and holds the current one. A section reader leaves the line that ended its
/// section as the current line, so that the next section's first line isn't lost. Lines lose their outer
/// blanks; names and keys are compared in upper case.
class SectionLines {
public:
    explicit SectionLines(TextReader& stream) : stream_(stream) {}

    [[nodiscard]] bool AtEnd() const noexcept { return stream_.AtEndOfStream(); }
    /// Advances to the next line. Fails with 62 at the end.
    void Next(Where at = Where::current());
    [[nodiscard]] bool HoldsSectionLine() const noexcept { return line_.starts_with(u'['); }
    /// Whether the current line begins the given section. The name is in upper case, with brackets.
    [[nodiscard]] bool Begins(TextView sectionLine) const noexcept;

    struct Pair {
        TextView key;   ///< without outer blanks, in the case of the file
        TextView value; ///< everything after the first "="
    };
    /// Enters a section: NextPair reads on, whatever the current line was.
    void EnterSection() noexcept { line_ = u"section"; }
    /// Advances to the next line with a "=". Returns false if the section has ended: at a section line, a
    /// blank line or the end of the file.
    [[nodiscard]] bool NextPair(Pair& pair, Where at = Where::current());
    /// Makes comparisons of the current line case-sensitive.
    void KeepCase() noexcept { caseCounts_ = true; }

private:
    TextReader& stream_;
    TextView line_;
    bool caseCounts_ = false;
};

} // namespace htdrdd::basTemplate
