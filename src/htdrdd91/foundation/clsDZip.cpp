#include "htdrdd91/foundation/clsDZip.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/temporary.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/zip_archive.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace htdrdd {
namespace {

/// Creates a file. Returns a null pointer if its name is unusable or taken; other failures don't depend on
/// the name.
std::unique_ptr<FileWriter> CreateUnder(FileSystem& files, TextView path) {
    try {
        return files.Create(path);
    } catch (const Failure& failure) {
        const auto number = static_cast<Err>(failure.Number());
        if (number != Err::BadFileName && number != Err::FileExists) throw;
        return {};
    }
}

/// Extracts one member. Returns false if its content or its name is unusable.
bool Extract(FileSystem& files, ZipReader& archive, std::int32_t member, TextView path, bool Overwrite) {
    if (Overwrite && files.FileExists(path)) files.DeleteFile(path);
    const auto file = CreateUnder(files, path);
    if (!file) return false;
    Temporary part(Text{path});
    if (!archive.Read(member, [&](std::string_view piece) { file->Write(piece); })) return false;
    file->Close();
    part.Keep();
    return true;
}

} // namespace

bool clsDZip::Zip(TextView ZipName, const Variant& ZipFiles, TextView EncryptStr,
                  bool NoDirectoryNames) const noexcept {
    bool result = false;
    try {
        const Array<Variant> one({ZipFiles});
        const Array<Variant>& names = ZipFiles.AsArray() != nullptr ? *ZipFiles.AsArray() : one;
        FileSystem& files = CurrentFileSystem();
        const Temporary temporary;
        ZipWriter archive(EncryptStr);
        for (std::int32_t l = names.LowerBound(); l <= names.UpperBound(); ++l) {
            const Text path = names.At(l).ToText();
            TextView name = path;
            if (NoDirectoryNames)
                name = FileNameOf(name);
            else
                name.remove_prefix(std::min(name.find_first_not_of(u'/'), name.size()));
            if (!archive.Add(name, files.Read(path))) return false;
        }
        const auto bytes = archive.Finish();
        if (!bytes) return false;
        temporary.Write(bytes->View());
        if (files.FileExists(ZipName)) files.DeleteFile(ZipName);
        files.CopyFile(temporary.Path(), ZipName);
        temporary.Delete();
        result = files.FileExists(ZipName);
    } catch (...) { ReportFailure(u"clsDZip.Zip"); }
    return result;
}

bool clsDZip::UnZip(TextView ZipName, TextView DestinationDir, Array<Text>& ExtractedFiles,
                    std::int32_t& ExtractedFilesCount, TextView DecryptStr, bool Overwrite,
                    bool /*NoDirectoryNames*/, bool /*MessageCallBack*/) const noexcept {
    bool result = false;
    try {
        ExtractedFilesCount = 0;
        FileSystem& files = CurrentFileSystem();
        if (!files.FileExists(ZipName)) return false;
        ZipReader archive(files, ZipName, DecryptStr);
        if (!archive.IsOpen()) return false;
        const std::int32_t members = archive.Count();
        ExtractedFiles = Array<Text>(std::vector<Text>(static_cast<std::size_t>(members)), 1);
        for (std::int32_t l = 1; l <= members; ++l) {
            Text name = archive.FileName(l - 1);
            if (name.empty() || !Extract(files, archive, l - 1, BuildPath(DestinationDir, name), Overwrite))
                continue;
            ExtractedFiles.At(l) = std::move(name);
            ++ExtractedFilesCount;
        }
        if (ExtractedFilesCount == 0)
            ExtractedFiles = {};
        else
            ExtractedFiles.Items().resize(static_cast<std::size_t>(ExtractedFilesCount));
        result = ExtractedFilesCount == members && members >= 1;
    } catch (...) { ReportFailure(u"clsDZip.UnZip"); }
    return result;
}

namespace {

struct Message {
    std::size_t code;
    TextView text;
};

template <std::size_t N, std::size_t M>
constexpr std::array<TextView, N> ByCode(const std::array<Message, M>& messages) {
    std::array<TextView, N> texts{};
    for (const Message& message : messages) texts[message.code] = message.text;
    return texts;
}

constexpr std::array kUnzipMessages{
    Message{2, u"Unexpected end of zip file"},
    Message{3, u"Zip file structure invalid"},
    Message{4, u"Out of memory"},
    Message{5, u"Out of memory"},
    Message{9, u"File not found"},
    Message{11, u"No files to test, UNZIP_EXTRACT, etc."},
    Message{25, u"Index out of bounds"},
    Message{28, u"Error creating output file"},
    Message{29, u"Error opening archive"},
    Message{39, u"Bad CRC"},
    Message{40, u"Application cancelled operation"},
    Message{41, u"File skipped, encrypted"},
    Message{42, u"File skipped, unknown compression method"},
    Message{44, u"Bad or missing decrypt code"},
    Message{45, u"Busy, can't enter now"},
    Message{46, u"Can't UNZIP_EXTRACT a Volume ID item"},
    Message{47, u"Command syntax error"},
    Message{48, u"Operation cancelled"},
    Message{49, u"Operation skipped"},
    Message{50, u"Disk full"},
};
constexpr std::array kZipMessages{
    Message{1, u"Busy, can't enter now"},
    Message{2, u"Unexpected end of zip file"},
    Message{3, u"Zip file structure invalid"},
    Message{4, u"Out of memory"},
    Message{5, u"Internal logic error"},
    Message{6, u"Entry too big to split"},
    Message{7, u"Invalid comment format"},
    Message{8, u"Zip file invalid or insufficient memory"},
    Message{9, u"Application cancelled operation"},
    Message{10, u"Temporary file failure"},
    Message{11, u"Input file read failure"},
    Message{12, u"Nothing to do!"},
    Message{13, u"Missing or empty zip file"},
    Message{14, u"Output file write failure, possible disk full"},
    Message{15, u"Could not create output file"},
    Message{16, u"Invalid control parameters"},
    Message{17, u"Could not complete operation"},
    Message{18, u"File not found or no read permission"},
    Message{19, u"Media Error"},
    Message{20, u"Invalid Multi-Volume control parameters"},
    Message{21, u"Improper usage of Multi-Volume Zip file"},
};

} // namespace

const std::array<TextView, 51> clsDZip::mUnzipMessages = ByCode<51>(kUnzipMessages);
const std::array<TextView, 22> clsDZip::mZipMessages = ByCode<22>(kZipMessages);

} // namespace htdrdd
