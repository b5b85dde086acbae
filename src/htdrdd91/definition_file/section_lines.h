/// The lines of a definition, as sections see them.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/platform/text_stream.h"

namespace htdrdd::basTemplate {

/// Walks the lines of a definition and holds the current one, which the section readers hand back and forth:
/// a reader leaves the line that ended its section, so that nobody swallows the next section's first line.
/// Lines lose their outer blanks; names and keys count in upper case.
class SectionLines {
public:
    explicit SectionLines(TextReader& stream) : stream_(stream) {}

    [[nodiscard]] bool AtEnd() const noexcept { return stream_.AtEndOfStream(); }
    /// Takes the next line. Fails with 62 at the end.
    void Next(Where at = Where::current());
    [[nodiscard]] bool HoldsSectionLine() const noexcept { return line_.starts_with(u'['); }
    /// Whether the current line is the one that begins a section; the name is in upper case, with brackets.
    [[nodiscard]] bool Begins(TextView sectionLine) const noexcept;

    struct Pair {
        TextView key;   ///< without outer blanks, in the case of the file
        TextView value; ///< all that stands behind the first "="
    };
    /// Enters a section: whatever the current line was, pairs can be taken.
    void EnterSection() noexcept { line_ = u"section"; }
    /// Takes lines up to the next one that holds "=". False where the section has ended: at a section line, a
    /// blank line or the end of the file.
    [[nodiscard]] bool NextPair(Pair& pair, Where at = Where::current());
    /// Lets the current line count in its own case.
    void KeepCase() noexcept { caseCounts_ = true; }

private:
    TextReader& stream_;
    TextView line_;
    bool caseCounts_ = false;
};

} // namespace htdrdd::basTemplate
