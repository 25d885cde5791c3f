// What a command prints.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace tarn::test {

inline std::vector<std::string> output(const std::string& command) {
    std::vector<std::string> lines;
    FILE* pipe = popen(command.c_str(), "r");
    std::string line;
    for (int c; (c = std::fgetc(pipe)) != EOF;) {
        if (c == '\n') lines.push_back(std::move(line)), line.clear();
        else line += static_cast<char>(c);
    }
    EXPECT_EQ(pclose(pipe), 0) << command;
    return lines;
}

}  // namespace tarn::test
