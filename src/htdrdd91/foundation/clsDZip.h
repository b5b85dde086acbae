/// Password-protected archives.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/base/variant.h"

#include <array>
#include <cstdint>

namespace htdrdd {

/// Makes an archive of files, and files of an archive. What the zip library refuses gives false in silence; a
/// failure, such as a full disk, is reported under the member's name and gives false.
class clsDZip final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsDZip"; }

    Ref<Object> dZip; ///< places for the objects of an archive service; empty, since none is needed
    Ref<Object> dUnZip;
    bool Cancel = false; ///< only stored

    /// Puts files, a name or an array of names, into an archive, with a password unless EncryptStr is empty.
    /// NoDirectoryNames false stores them under their whole paths. An old file of the archive's name is
    /// deleted when the new archive is complete; up to there it stays as it is. Whether the archive is there
    /// at the end.
    bool Zip(TextView ZipName, const Variant& ZipFiles, TextView EncryptStr = {},
             bool NoDirectoryNames = true) const noexcept;

    /// Takes the members of an archive out into a folder, under the last parts of their names. ExtractedFiles
    /// gets those names, from 1, counted by the member: that of one that can't be taken out stays empty. This
    /// is meant: the list is then cut to ExtractedFilesCount names, so that names at its end are lost. It has
    /// no storage where none came out, and stays as it is where ZipName is no archive. True if there are
    /// members and all came out. Overwrite false fails a member whose file is there. Members never get
    /// folders, and nothing is called back: the last two arguments have no effect.
    bool UnZip(TextView ZipName, TextView DestinationDir, Array<Text>& ExtractedFiles,
               std::int32_t& ExtractedFilesCount, TextView DecryptStr = {}, bool Overwrite = true,
               bool NoDirectoryNames = true, bool MessageCallBack = true) const noexcept;

    /// What the codes of zip programs mean; codes without a text have an empty one.
    static const std::array<TextView, 51> mUnzipMessages;
    static const std::array<TextView, 22> mZipMessages;
};

} // namespace htdrdd
