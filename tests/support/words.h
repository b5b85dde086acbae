/// Texts from files: definitions, cases and expected results.
#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace htdrdd::test {

/// The definition in tests/words/NAME.txt.
inline std::string Definition(const std::string& name) {
    std::ifstream file(HTDRDD_SOURCE_DIR "/tests/words/" + name + ".txt");
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The lines of tests/words/NAME.txt. In them, \r, \n, \t and \v stand for line ends and tabs of a text.
inline std::vector<std::string> Words(const std::string& name) {
    std::ifstream file(HTDRDD_SOURCE_DIR "/tests/words/" + name + ".txt");
    std::vector<std::string> words;
    for (std::string line; std::getline(file, line); words.push_back(line))
        for (const auto& [escape, unit] :
             {std::pair("\\r", "\r"), {"\\n", "\n"}, {"\\t", "\t"}, {"\\v", "\v"}})
            for (std::size_t at = 0; (at = line.find(escape)) != std::string::npos;)
                line.replace(at, 2, unit);
    return words;
}

} // namespace htdrdd::test
