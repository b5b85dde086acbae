// Holds the folders to their layers, and libraries, names and conditional code to their places.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace {

/// A folder includes itself and the folders in front of it.
const std::array<std::string, 9> kLayers{"platform",        "foundation", "grade_scales",
                                         "scaled_scores",   "model",      "validation",
                                         "definition_file", "merge",      "component"};

struct Line {
    std::string file; ///< from the folder on that was asked for
    std::string text;
};
std::ostream& operator<<(std::ostream& out, const Line& line) { return out << line.file + ": " + line.text; }

std::vector<Line> Lines(const std::string& folder) {
    const auto root = std::filesystem::path(HTDRDD_SOURCE_DIR) / folder;
    std::vector<Line> lines;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
        std::ifstream source(entry.path());
        for (std::string text; std::getline(source, text);)
            lines.push_back({entry.path().lexically_relative(root), text});
    }
    return lines;
}

/// The names of the headers that are included with that opening mark, in place of whole lines.
std::vector<Line> Includes(const std::string& folder, char mark) {
    std::vector<Line> headers;
    for (const auto& [file, text] : Lines(folder))
        if (const auto start = std::string("#include ") + mark; text.starts_with(start))
            headers.push_back({file, text.substr(start.size(), text.find_last_of("\">") - start.size())});
    return headers;
}

/// First part of a path.
std::string First(const std::string& path) { return path.substr(0, path.find('/')); }

/// Place of a file's layer. Those in no layer, such as the sources' root, come behind all others.
auto Layer(const std::string& path) {
    return std::find(kLayers.begin(), kLayers.end(), First(path)) - kLayers.begin();
}

TEST(Layers, AFolderIncludesOnlyItselfAndFoldersAbove) {
    const auto includes = Includes("src", '"');
    EXPECT_GT(includes.size(), kLayers.size());
    for (const Line& line : includes) {
        EXPECT_LE(Layer(line.text), Layer(line.file)) << line;
        EXPECT_TRUE(Layer(line.file) < std::ssize(kLayers) || line.file == First(line.file)) << line;
    }
}

TEST(Layers, EachLibraryHasOnePlace) {
    const std::set<std::string> platforms{"nettle", "unicode", "zip.h", "libxml"}, hosts{"CLI", "nlohmann"};
    for (const Line& line : Includes("src", '<')) {
        EXPECT_FALSE(hosts.contains(First(line.text))) << line;
        EXPECT_TRUE(First(line.file) == "platform" || !platforms.contains(First(line.text))) << line;
    }
    std::set<std::string> withCLI;
    for (const Line& line : Includes("host", '<')) {
        EXPECT_FALSE(platforms.contains(First(line.text))) << line;
        if (First(line.text) == "CLI") withCLI.insert(line.file);
    }
    ASSERT_EQ(withCLI.size(), 1U);
    EXPECT_TRUE(withCLI.begin()->ends_with(".cpp")) << *withCLI.begin();
}

TEST(Layers, ThePlatformKnowsNoNamesOfDefinitions) {
    const auto isLetter = [](char c) { return std::isalnum(c) != 0 || c == '_'; };
    for (const Line& line : Lines("src/platform"))
        for (std::size_t at = 0; at + 3 < line.text.size(); ++at) {
            const auto prefix = line.text.substr(at, 3);
            const bool isWord =
                (at == 0 || !isLetter(line.text[at - 1])) && std::isupper(line.text[at + 3]) != 0;
            EXPECT_FALSE(isWord && (prefix == "cls" || prefix == "bas")) << line;
        }
}

TEST(Layers, OnlyThePlatformAndTheComponentCompileConditionally) {
    for (const Line& line : Lines("src")) {
        const bool mayDo = First(line.file) == "platform" || First(line.file) == "component";
        EXPECT_TRUE(mayDo || !line.text.starts_with("#if")) << line;
    }
}

} // namespace
