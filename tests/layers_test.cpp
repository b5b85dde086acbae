// Holds the folders to their layers, and libraries, names and conditional code to their places.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace {

/// Folder of a path in the sources, or the path itself.
std::string First(const std::string& path) { return path.substr(0, path.find('/')); }

/// A folder includes itself and the folders in front of it. The library of grade scales also knows documents,
/// and counts as a layer of its own. Those in no layer come behind all others.
std::size_t Layer(const std::string& path) {
    const std::string layers = "platform foundation grade_scales scaled_scores model validation "
                               "definition_file merge grade_scales/clsHTDGradeScaleManager component";
    const std::size_t own = layers.find(path.substr(0, path.rfind('.')));
    return own != std::string::npos ? own : layers.find(First(path));
}

/// Files in a folder, and what a pattern's last group finds in their lines.
std::vector<std::pair<std::string, std::string>> Lines(const std::string& folder,
                                                       const std::string& pattern) {
    const auto root = std::filesystem::path(HTDRDD_SOURCE_DIR) / folder;
    const std::regex wanted(pattern);
    std::vector<std::pair<std::string, std::string>> lines;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        std::ifstream source(entry.path());
        std::smatch match;
        for (std::string text; std::getline(source, text);)
            if (std::regex_search(text, match, wanted))
                lines.emplace_back(entry.path().lexically_relative(root), match[match.size() - 1]);
    }
    return lines;
}

TEST(Layers, AFolderIncludesOnlyItselfAndFoldersAbove) {
    const auto includes = Lines("src", "^#include \"(.*)\"");
    EXPECT_GT(includes.size(), 9U);
    for (const auto& [file, header] : includes) {
        EXPECT_LE(Layer(header), Layer(file)) << file << ": " << header;
        EXPECT_TRUE(Layer(file) != std::string::npos || file == First(file)) << file << " is in no layer";
    }
}

TEST(Layers, LibrariesNamesAndConditionalCodeHaveTheirPlaces) {
    const std::string platforms = "^#include <(nettle|unicode|zip|libxml)";
    EXPECT_FALSE(Lines("src/platform", platforms).empty());
    EXPECT_EQ(Lines("src", platforms).size(), Lines("src/platform", platforms).size());
    EXPECT_TRUE(Lines("src", "^#include <(CLI|nlohmann)").empty() && Lines("host", platforms).empty());
    EXPECT_EQ(Lines("host", "^#include <CLI").size(), 1U);
    for (const auto& [file, name] : Lines("src/platform", "\\b(cls|bas)[A-Z]")) ADD_FAILURE() << file;
    for (const auto& [file, line] : Lines("src", "^#if"))
        EXPECT_TRUE(First(file) == "platform" || First(file) == "component") << file;
}

} // namespace
