/// Texts that cases are compared with.
#pragma once

#include <fstream>
#include <string>
#include <vector>

namespace htdrdd::test {

/// The lines of tests/words/NAME.txt, in which line ends of a text stand as \r\n.
inline std::vector<std::string> Words(const std::string& name) {
    std::ifstream file(HTDRDD_SOURCE_DIR "/tests/words/" + name + ".txt");
    std::vector<std::string> words;
    for (std::string line; std::getline(file, line); words.push_back(line))
        for (std::size_t end = 0; (end = line.find("\\r\\n")) != std::string::npos;)
            line.replace(end, 4, "\r\n");
    return words;
}

} // namespace htdrdd::test
