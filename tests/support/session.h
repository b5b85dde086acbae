/// The surroundings of tests: a recording host and desktop, files in memory, and definitions as texts.
#pragma once

#include "htdrdd91/foundation/ErrorHost.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/machine_region.h"
#include "htdrdd91/platform/thread_state.h"
#include "support/memory_file_system.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace htdrdd::test {

using Said = std::vector<std::string>;

/// The beginnings of reports about common failures.
inline const std::string kArgument = "5 Invalid procedure call or argument @ ";
inline const std::string kOverflow = "6 Overflow @ ";
inline const std::string kSubscript = "9 Subscript out of range @ ";
inline const std::string kTypeMismatch = "13 Type mismatch @ ";
inline const std::string kNotSet = "91 Object variable or With block variable not set @ ";
inline const std::string kKeyInUse =
    "457 This key is already associated with an element of this collection @ ";

/// Records reports, one line each: "13 Type mismatch @ clsHTDRDD.Read" for a failure, without the source
/// line, "Caption: text @ clsHTDRDD.ValidateKey" for a rule that a definition or a key to be merged breaks,
/// and "Invalid File: text [152 &OK]" for a message.
class RecordingHost final : public ErrorHost {
public:
    Said said;
    std::int32_t answer = 1;
    std::function<void()> whenHeard; ///< called for each report and message
    std::int16_t RaiseError(const HostComplaint& complaint) override {
        if (whenHeard) whenHeard();
        const std::string location = ToUtf8(complaint.sLocation);
        const std::size_t line = location.find("; Line: ");
        const bool rule = !complaint.sTitle.empty();
        const bool import = complaint.sTitle == u"Key Import Error";
        EXPECT_EQ(complaint.lKind, rule ? 2 : 0);
        EXPECT_EQ(complaint.vError.IsMissing(), rule && !import);
        EXPECT_EQ(import, rule && !complaint.vError.IsMissing() && complaint.vError.ToInteger32() == 9999);
        EXPECT_TRUE(!rule || line != std::string::npos);
        said.push_back((Silent() ? "(silent) " : "") +
                       (rule ? ToUtf8(complaint.sTitle) + ":" : ToUtf8(complaint.vError.ToText())) + " " +
                       ToUtf8(complaint.sDescription) + " @ " + location.substr(0, line));
        return 0;
    }
    std::int32_t MsgBoxEx(const HostMessage& message) override {
        if (whenHeard) whenHeard();
        said.push_back(ToUtf8(message.caption) + ": " + ToUtf8(message.message) + " [" +
                       std::to_string(message.flags) + " " + ToUtf8(message.firstButton) +
                       ToUtf8(message.secondButton) + "]");
        return answer;
    }
};

class RecordingDesktop final : public Desktop {
public:
    Said said;
    int pauses = 0;
    void MousePointer(std::int32_t kind) override { pointer = kind; }
    void MsgBox(TextView prompt, std::int32_t flags, TextView caption) override {
        said.push_back(ToUtf8(caption) + " [" + std::to_string(flags) + "]: " + ToUtf8(prompt));
    }
    void Pause(std::int32_t /*milliseconds*/) override { ++pauses; }
    std::int32_t pointer = -1;
};

/// UTF-16 little-endian with its byte order mark.
inline std::string Unicode(TextView text) { return std::string(kUtf16Mark) + ToUtf16(text); }

/// The thread's surroundings for one test; the end restores the previous ones. Also checks at the end that
/// the test has taken all reports from `host->said` and `desktop.said`.
class Session : public ::testing::Test {
protected:
    Session() {
        UseFileSystem(&files);
        UseDesktop(&desktop);
        ThisThread().errorHost = host;
        ThisThread().region = Region();
    }
    ~Session() override {
        EXPECT_EQ(host->said, Said());
        EXPECT_EQ(desktop.said, Said());
        ThisThread().errorHost = nullptr;
        ThisThread().region = MachineRegion();
        UseDesktop(nullptr);
        UseFileSystem(nullptr);
    }

    /// The reports to the host since the last call.
    Said Heard() { return std::exchange(host->said, {}); }

    /// Reads a definition from a text, as a Unicode file, or from the bytes of a file.
    bool Read(TextView text) { return ReadBytes(Unicode(text)); }
    bool ReadBytes(std::string bytes) {
        files.files[u"/exam.rdd"] = std::move(bytes);
        return rdd->Read(u"/exam.rdd");
    }

    MemoryFileSystem files;
    RecordingDesktop desktop;
    Ref<RecordingHost> host = Make<RecordingHost>();
    Ref<clsHTDRDD> rdd = Make<clsHTDRDD>();
};

} // namespace htdrdd::test
