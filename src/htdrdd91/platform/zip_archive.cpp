#include "htdrdd91/platform/zip_archive.h"

#include "htdrdd91/platform/encoding.h"

#include <limits>
#include <utility>
#include <vector>
#include <zip.h>

namespace htdrdd {
namespace {

constexpr std::string_view kEndRecord("PK\5\6", 4);
constexpr std::size_t kFarthestEndRecord =
    65535 + 22 + 20; // bytes from the end: comment, end record, its 64-bit locator
constexpr zip_uint64_t kMostHandedOut = zip_uint64_t{1} << 30U; // many members may share the same bytes
constexpr std::size_t kPiece = std::size_t{1} << 18U;
constexpr zip_uint32_t kDeflateLevel = 5;
constexpr zip_uint32_t kOwnersFile = 0100600U << 16U; // a regular file for its owner, when unpacked on Unix

struct Closer {
    void operator()(zip_t* archive) const noexcept { ::zip_discard(archive); }
    void operator()(zip_source_t* source) const noexcept { ::zip_source_free(source); }
    void operator()(zip_file_t* file) const noexcept { ::zip_fclose(file); }
};
template <class T>
using Handle = std::unique_ptr<T, Closer>;

/// A source over bytes, which must outlive it.
Handle<zip_source_t> SourceOver(std::string_view bytes) {
    return Handle<zip_source_t>(::zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr));
}

/// Opens an archive, which then owns the source. If there is no archive, the source is freed.
Handle<zip_t> OpenFrom(Handle<zip_source_t> source, int flags) {
    if (!source) return {};
    Handle<zip_t> archive(::zip_open_from_source(source.get(), flags, nullptr));
    if (archive) static_cast<void>(source.release());
    return archive;
}

} // namespace

bool EndsLikeZip(FileSystem& files, TextView path, Where at) {
    const Bytes end = files.ReadEnd(path, kFarthestEndRecord, at);
    return end.View().find(kEndRecord) != std::string_view::npos;
}

struct ZipReader::Archive {
    Handle<zip_t> zip;
    zip_uint64_t handedOut = 0; ///< bytes
};

ZipReader::ZipReader(FileSystem& files, TextView path, TextView password, Where at)
    : archive_(std::make_unique<Archive>()) {
    if (!EndsLikeZip(files, path, at)) return; // no archive: no need to read it
    bytes_ = files.Read(path, std::numeric_limits<std::size_t>::max(), at);
    archive_->zip = OpenFrom(SourceOver(bytes_.View()), ZIP_RDONLY);
    if (archive_->zip && !password.empty())
        ::zip_set_default_password(archive_->zip.get(), ToUtf8(password).c_str());
}

ZipReader::~ZipReader() = default;

bool ZipReader::IsOpen() const noexcept { return archive_->zip != nullptr; }

std::int32_t ZipReader::Count() const noexcept {
    return static_cast<std::int32_t>(::zip_get_num_entries(archive_->zip.get(), 0));
}

Text ZipReader::FileName(std::int32_t member) const {
    const char* const stored = ::zip_get_name(archive_->zip.get(), static_cast<zip_uint64_t>(member), 0);
    if (stored == nullptr) return {};
    std::string_view name(stored);
    name = name.substr(name.find_last_of("/\\:") + 1);
    return name == "." || name == ".." ? Text() : FromUtf8(name);
}

bool ZipReader::Read(std::int32_t member, const std::function<void(std::string_view)>& piece) {
    zip_t* const zip = archive_->zip.get();
    const auto index = static_cast<zip_uint64_t>(member);
    zip_stat_t status;
    // libzip 1.7 leaks memory when it opens a member that it can't read.
    if (::zip_stat_index(zip, index, 0, &status) != 0 ||
        ::zip_compression_method_supported(status.comp_method, 0) == 0 ||
        ::zip_encryption_method_supported(status.encryption_method, 0) == 0)
        return false;
    Handle<zip_file_t> file(::zip_fopen_index(zip, index, 0));
    if (!file) return false;
    Bytes room(kPiece);
    zip_int64_t got = 0;
    // Read to the very end: the checksum is verified only there.
    while ((got = ::zip_fread(file.get(), room.Data(), kPiece)) > 0) {
        archive_->handedOut += static_cast<zip_uint64_t>(got);
        if (archive_->handedOut > kMostHandedOut) return false;
        piece(room.View().substr(0, static_cast<std::size_t>(got)));
    }
    return ::zip_fclose(file.release()) == 0 && got == 0;
}

struct ZipWriter::Archive {
    std::vector<Bytes> contents; ///< outlive the sources over them
    Handle<zip_source_t> result; ///< receives the archive
    Handle<zip_t> zip;
    std::string password;
};

ZipWriter::ZipWriter(TextView password) : archive_(std::make_unique<Archive>()) {
    archive_->password = ToUtf8(password);
    archive_->result = SourceOver({});
    if (!archive_->result) return;
    ::zip_source_keep(archive_->result.get());
    archive_->zip = OpenFrom(Handle<zip_source_t>(archive_->result.get()), ZIP_TRUNCATE);
}

ZipWriter::~ZipWriter() = default;

bool ZipWriter::Add(TextView name, Bytes content) {
    zip_t* const zip = archive_->zip.get();
    if (zip == nullptr) return false;
    auto source = SourceOver(archive_->contents.emplace_back(std::move(content)).View());
    if (!source) return false;
    const zip_int64_t member = ::zip_file_add(zip, ToUtf8(name).c_str(), source.get(), ZIP_FL_ENC_UTF_8);
    if (member < 0) return false;
    static_cast<void>(source.release());
    const auto index = static_cast<zip_uint64_t>(member);
    return ::zip_file_set_external_attributes(zip, index, 0, ZIP_OPSYS_UNIX, kOwnersFile) == 0 &&
           ::zip_set_file_compression(zip, index, ZIP_CM_DEFLATE, kDeflateLevel) == 0 &&
           (archive_->password.empty() ||
            ::zip_file_set_encryption(zip, index, ZIP_EM_TRAD_PKWARE, archive_->password.c_str()) == 0);
}

std::optional<Bytes> ZipWriter::Finish() {
    if (!archive_->zip || ::zip_close(archive_->zip.get()) != 0) return {};
    static_cast<void>(archive_->zip.release());
    zip_source_t* const result = archive_->result.get();
    zip_stat_t status;
    if (::zip_source_stat(result, &status) != 0 || ::zip_source_open(result) != 0) return {};
    Bytes bytes(status.size);
    const zip_int64_t got = ::zip_source_read(result, bytes.Data(), status.size);
    ::zip_source_close(result);
    if (got < 0 || static_cast<zip_uint64_t>(got) != status.size) return {};
    return bytes;
}

} // namespace htdrdd
