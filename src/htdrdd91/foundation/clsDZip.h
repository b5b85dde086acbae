/// Password-protected archives.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/base/variant.h"

#include <array>
#include <cstdint>

namespace htdrdd {

/// Packs files into an archive and extracts them. If the zip library refuses, the result is false without a
/// report; a failure, such as a full disk, is reported under the member's name, and the result is false.
class clsDZip final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsDZip"; }

    Ref<Object> dZip; ///< reserved for the objects of an archive service; empty, since none is needed
    Ref<Object> dUnZip;
    bool Cancel = false; ///< only stored

    /// Packs files, a name or an array of names, into an archive, with a password unless EncryptStr is empty.
    /// If NoDirectoryNames is false, the files are stored under their whole paths. An old file of the
    /// archive's name stays until the new archive is complete, and is then deleted. Returns whether the
    /// archive exists at the end.
    bool Zip(TextView ZipName, const Variant& ZipFiles, TextView EncryptStr = {},
             bool NoDirectoryNames = true) const noexcept;

    /// Extracts the members of an archive into a folder, under the last parts of their names. ExtractedFiles
    /// gets those names at the members' positions from 1; the name of a member that can't be extracted stays
    /// empty. This is meant: the list is then cut to ExtractedFilesCount names, so names at its end are lost.
    /// It has no storage if no member was extracted, and is unchanged if ZipName is not an archive. Returns
    /// true if there are members and all were extracted. If Overwrite is false, a member whose file exists
    /// fails. No folders are created and nothing is called back: the last two arguments have no effect.
    bool UnZip(TextView ZipName, TextView DestinationDir, Array<Text>& ExtractedFiles,
               std::int32_t& ExtractedFilesCount, TextView DecryptStr = {}, bool Overwrite = true,
               bool NoDirectoryNames = true, bool MessageCallBack = true) const noexcept;

    /// The meanings of the codes of zip programs; empty for codes without a text.
    static const std::array<TextView, 51> mUnzipMessages;
    static const std::array<TextView, 22> mZipMessages;
};

} // namespace htdrdd
