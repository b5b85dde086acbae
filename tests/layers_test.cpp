// Checks that folders include only lower layers, and that libraries, names and conditional code are in place.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace {

/// The layers, lowest first. A file includes only its own layer and those before it in this list. The names
/// are whole folder names under src/htdrdd91/.
const std::vector<std::string> kLayers{"base",
                                       "platform",
                                       "foundation",
                                       "grade_scales",
                                       "scaled_scores",
                                       "model",
                                       "validation",
                                       "definition_file",
                                       "merge",
                                       "component/layout",
                                       "component/values",
                                       "component/faces",
                                       "component/entry"};

/// The position of a path's layer in the list; the length of the list if the path is in no layer. One
/// exception: the library of grade scales is stored with its scales, although it uses documents.
std::size_t Layer(std::string path) {
    if (path.starts_with("grade_scales/clsHTDGradeScaleManager.")) path = "merge/";
    const auto found = std::find_if(kLayers.begin(), kLayers.end(),
                                    [&](const std::string& layer) { return path.starts_with(layer + '/'); });
    return static_cast<std::size_t>(found - kLayers.begin());
}

const std::string kSources = "src/htdrdd91";

/// The files in a folder with a line that matches a pattern, and the match of the pattern's last group.
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
    const auto includes = Lines(kSources, "^#include \"(.*)\"");
    EXPECT_GT(includes.size(), 9U);
    for (const auto& [file, header] : includes) {
        ASSERT_TRUE(header.starts_with("htdrdd91/")) << file << ": " << header;
        const std::string included = header.substr(header.find('/') + 1);
        const bool isGenerated =
            included.starts_with("component/") && included.rfind('/') == included.find('/');
        EXPECT_TRUE(isGenerated || Layer(included) <= Layer(file)) << file << ": " << header;
        EXPECT_TRUE(Layer(file) < kLayers.size() || file == "htdrdd91.h") << file << " is in no layer";
    }
}

TEST(Layers, LibrariesNamesAndConditionalCodeHaveTheirPlaces) {
    const std::string libraries = "^#include <(nettle|unicode|zip|libxml)";
    EXPECT_FALSE(Lines(kSources + "/platform", libraries).empty());
    EXPECT_EQ(Lines(kSources, libraries).size(), Lines(kSources + "/platform", libraries).size());
    EXPECT_TRUE(Lines(kSources, "^#include <(CLI|nlohmann)").empty() && Lines("host", libraries).empty());
    EXPECT_EQ(Lines("host", "^#include <CLI").size(), 1U);
    for (const char* const folder : {"/base", "/platform"})
        for (const auto& [file, name] : Lines(kSources + folder, "\\b(cls|bas)[A-Z]")) ADD_FAILURE() << file;
    for (const auto& [file, line] : Lines(kSources, "^#if"))
        EXPECT_TRUE(file.starts_with("platform/") || file.starts_with("component/")) << file;
}

} // namespace
