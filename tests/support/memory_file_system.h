/// A file system in memory whose operations fail on request.
#pragma once

#include "htdrdd91/platform/file_system.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace htdrdd::test {

class MemoryFileSystem final : public FileSystem {
public:
    std::map<Text, std::string> files;
    std::set<Text> folders{u"/tmp"};
    std::map<Text, FileMode> modes; ///< only of files that were given a mode
    /// The operation that fails, counted from 1; 0: none. Checks for existence never fail.
    int failingOperation = 0;
    Err failure = Err::PermissionDenied;
    /// The number of operations so far.
    int operations = 0;
    int refusedCopies = 0; ///< number of next copies that fail
    int refusedDeletions = 0;
    int takenNames = 0; ///< number of next file names that count as existing

    bool FileExists(TextView path) override { return takenNames-- > 0 || files.count(Text(path)) != 0; }
    bool FolderExists(TextView path) override { return folders.count(Text(path)) != 0; }
    Bytes Read(TextView path, std::size_t limit, Where at) override {
        Count(at);
        return BytesOf(Find(path, at).substr(0, limit));
    }
    Bytes ReadEnd(TextView path, std::size_t limit, Where at) override {
        Count(at);
        const std::string& content = Find(path, at);
        return BytesOf(content.substr(content.size() - std::min(limit, content.size())));
    }
    std::unique_ptr<FileWriter> Create(TextView path, Where at) override {
        Count(at);
        if (files.count(Text(path)) != 0 || FolderExists(path)) throw Failure(Err::FileExists, at);
        return std::make_unique<Writer>(*this, Place(path, at));
    }
    std::unique_ptr<FileWriter> OpenForAppending(TextView path, Where at) override {
        Count(at);
        return std::make_unique<Writer>(*this, files[Text(path)]);
    }
    void CopyFile(TextView from, TextView to, std::optional<FileMode> mode, Where at) override {
        Count(at, refusedCopies-- > 0);
        const std::string content = Find(from, at);
        Place(to, at) = content;
        if (mode) modes[Text(to)] = *mode;
    }
    void DeleteFile(TextView path, Where at) override {
        Count(at, refusedDeletions-- > 0);
        Find(path, at);
        files.erase(Text(path));
        modes.erase(Text(path));
    }
    std::optional<FileMode> ModeOf(TextView path) override {
        const auto mode = modes.find(Text(path));
        return mode != modes.end() ? std::optional(mode->second) : std::nullopt;
    }
    void SetMode(TextView path, FileMode mode, Where at) override {
        Count(at);
        modes[Text(path)] = mode;
    }
    Text Resolved(TextView path) override { return Text(path); }
    void CreateFolder(TextView path, Where at) override {
        Count(at);
        if (path.empty() || !HasFolder(path)) throw Failure(Err::PathNotFound, at);
        if (!folders.insert(Text(path)).second) throw Failure(Err::FileExists, at);
    }
    void DeleteFolder(TextView path, Where at) override {
        Count(at);
        if (folders.erase(Text(path)) == 0) throw Failure(Err::PathNotFound, at);
        std::erase_if(files, [&](const auto& file) { return FolderOf(file.first) == path; });
    }
    Text TemporaryFolder(Where at) override {
        Count(at);
        return u"/tmp";
    }

private:
    class Writer final : public FileWriter {
    public:
        Writer(MemoryFileSystem& owner, std::string& content) : owner_(owner), content_(content) {}
        void Write(std::string_view bytes, Where at) override {
            owner_.Count(at);
            content_ += bytes;
        }
        void Close(Where at) override { owner_.Count(at); }

    private:
        MemoryFileSystem& owner_;
        std::string& content_;
    };

    void Count(Where at, bool refused = false) {
        if (++operations == failingOperation || refused) throw Failure(failure, at);
    }
    bool HasFolder(TextView path) {
        const TextView folder = FolderOf(path);
        return folder.empty() || folder == u"/" || FolderExists(folder);
    }
    static Bytes BytesOf(std::string_view content) {
        Bytes bytes(content.size());
        content.copy(bytes.Data(), content.size());
        return bytes;
    }
    std::string& Place(TextView path, Where at) {
        if (path.empty()) throw Failure(Err::FileNotFound, at);
        if (!HasFolder(path)) throw Failure(Err::PathNotFound, at);
        return files[Text(path)];
    }
    std::string& Find(TextView path, Where at) {
        const auto file = files.find(Text(path));
        if (file == files.end()) throw Failure(HasFolder(path) ? Err::FileNotFound : Err::PathNotFound, at);
        return file->second;
    }
};

} // namespace htdrdd::test
