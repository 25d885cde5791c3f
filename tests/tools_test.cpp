// The tools as people use them, at the command line.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "samples.hpp"

namespace tarn::test {
namespace {

struct Ran {
    int status;
    std::string text;
};
// A command of the shell; `tarn-` stands for the tools' directory as well.
Ran run(std::string command) {
    for (std::size_t at = 0; (at = command.find("tarn-", at)) != std::string::npos; at += sizeof TARN_TOOLS_DIR + 5)
        command.insert(at, TARN_TOOLS_DIR "/");
    FILE* pipe = popen(command.c_str(), "r");
    Ran ran{0, {}};
    for (int c; (c = std::fgetc(pipe)) != EOF;) ran.text += static_cast<char>(c);
    const int status = pclose(pipe);
    ran.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return ran;
}

long lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

// The columns of the last line of a result as comma-separated values.
std::vector<std::string> csv(const std::string& command) {
    const Ran ran = run(command + " --csv --quiet");
    EXPECT_EQ(ran.status, 0) << command;
    std::istringstream last(ran.text.substr(ran.text.find('\n') + 1));
    std::vector<std::string> columns;
    for (std::string column; std::getline(last, column, ',');) columns.push_back(column);
    columns.resize(8);
    return columns;
}
double ulp(const std::vector<std::string>& columns) { return std::strtod(columns[4].c_str(), nullptr); }

class Directory {
public:
    Directory() : path_((std::filesystem::temp_directory_path() / "measured-XXXXXX").string()) {
        if (!mkdtemp(path_.data())) throw std::runtime_error("no temporary directory");
    }
    ~Directory() { std::filesystem::remove_all(path_); }
    std::string operator/(const std::string& name) const { return path_ + '/' + name; }

private:
    std::string path_;
};

// Bad input, and output that cannot be written: one line, exit status 2.
TEST(Tools, RefuseBadInputInOneLine) {
    const std::vector<std::string> commands = {
        "tarn-eval nothing4 1 2 3 4", "tarn-eval expf4 1 2", "tarn-eval expf1 one", "tarn-eval expf1 0x123456789",
        "tarn-eval --module /nowhere.so expf1 1", "tarn-eval", "tarn-eval exp1 0x3f800000", "tarn-eval expf1 0x3ff0000000000000",
        "tarn-eval expf1 0x1", "tarn-eval pownf1 2 0x100000000", "tarn-eval pownf1 2 9999999999", "tarn-eval expf 1",
        "tarn-eval exp_half 1", "tarn-eval expf1 -x", "tarn-ulp", "tarn-ulp nothing4", "tarn-ulp fmodf4", "tarn-ulp expf4 --from 2 --to 1",
        "tarn-ulp powf4 --from 1", "tarn-ulp powf4 --to 1 2 3", "tarn-ulp expf4 --samples -3", "tarn-ulp expf4 --samples 1.5",
        "tarn-ulp expf4 --samples many", "tarn-ulp expf4 --samples 10 --plot x.txt", "tarn-ulp expf4 --samples 10 --log /nowhere/log",
        "tarn-ulp expf4 --all --plot /nowhere/x.svg", "PATH=/nowhere tarn-ulp expf4 --all --plot x.svg", "tarn-ulp expf4 --all --samples 10",
        "tarn-ulp powf4 --all", "tarn-ulp exp4 --search 1 --samples 10", "tarn-ulp exp4 --search 1 --log x", "tarn-ulp exp4 --search 0",
        "tarn-ulp exp4 --csv --json", "tarn-ulp expf4 --profile x", "tarn-ulp fmodf --profile x", "tarn-ulp sqrt --profile x", "tarn-ulp expf --profile /nowhere/x",
        "tarn-ulp expf --profile x --all", "tarn-ulp expf --profile x --csv", "tarn-ulp expf --profile x --search 1", "tarn-ulp powf --profile x --from 1 2",
        "tarn-ulp expf --profile x --from 2 --to 1", "tarn-figures profile /nowhere", "tarn-figures profile /dev/null", "tarn-exports pages /nowhere /nowhere", "tarn-exports pages", "tarn-bench nothing", "tarn-bench expf --rounds 0", "tarn-bench expf --v3 /nowhere.so",
        "tarn-bench expf --elements 17", "tarn-figures", "tarn-figures peers", "tarn-figures peers /nowhere",
        "tarn-figures differences /nowhere /nowhere", "tarn-figures group " TARN_SOURCE_DIR "/docs/data/speed.tsv Nothing", "tarn-exports speed /nowhere/page", "tarn-tables /nowhere"};
    for (const auto& command : commands) {
        const Ran ran = run(command + " 2>&1 >/dev/null");
        EXPECT_EQ(ran.status, 2) << command;
        EXPECT_EQ(lines(ran.text), 1) << command << ": " << ran.text;
    }
    for (const std::string command : {"tarn-eval expf1 1", "tarn-eval --help", "tarn-ulp --list", "tarn-ulp expf4 --samples 10 --quiet"}) {
        const Ran ran = run(command + " 2>&1 >/dev/full");
        EXPECT_EQ(ran.status, 2) << command;
        EXPECT_EQ(lines(ran.text), 1) << command << ": " << ran.text;
    }
    // The widths are said.
    EXPECT_NE(run("tarn-eval sinf_native 1 2>&1").text.find("sinf16_native"), std::string::npos);
}

// Lanes keep their order whatever their sign, and `--` changes nothing.
TEST(Eval, TakesLanesInTheOrderGiven) {
    const std::string lanes = "-inf 3 -.5 -NAN -0x1p-3 0xbf800000 -2e-45 -7";
    const Ran ran = run("tarn-eval powf4 " + lanes);
    EXPECT_EQ(ran.text, run("tarn-eval powf4 -- " + lanes).text);
    EXPECT_EQ(ran.text, run("tarn-eval -- powf4 " + lanes).text);
    const char* const arguments[] = {"-inf, -0.125", "3, -1", "-0.5, -1.40129846e-45", "-nan, -7"};
    for (const char* line : arguments) EXPECT_NE(ran.text.find(line), std::string::npos) << line << " in\n" << ran.text;
    std::istringstream text(run("tarn-eval expf4 -inf -inf 1 2").text);
    std::string line;
    std::getline(text, line), std::getline(text, line);
    for (const char* argument : {"-inf", "-inf", "1", "2"}) {
        std::string lane, shown;
        text >> lane >> shown;
        EXPECT_EQ(shown, argument);
        std::getline(text, line);
    }
}

// The search against all inputs of an interval: it must find the worst of them, or one within a thousandth,
// and can find no other. Intervals where the row's own worst input, which every search tries, is not.
TEST(Search, FindsTheWorstOfAllInputs) {
    for (const std::string what : {"expf16 --from 1 --to 1.25", "logf16 --from 2 --to 2.5", "atanf16_native --from 2 --to 2.5",
                                   "lgammaf16 --from -2.46 --to -2.45", "exp2f4 --from -8 --to -4"}) {
        const auto swept = csv("tarn-ulp " + what + " --all"), found = csv("tarn-ulp " + what + " --search 2");
        EXPECT_GE(ulp(found), 0.999 * ulp(swept)) << what << ", worst at " << swept[5];
        EXPECT_LE(ulp(found), ulp(swept) * 1.000001) << what << ", found at " << found[5];
    }
}

// What it reports is what an evaluation shows there, and never less than what the row states.
TEST(Search, ReportsWhatIsThere) {
    for (const std::string name : {"exp2", "tan16", "pow16", "pown16", "hypot16_native", "sincos16", "rsqrt16"}) {
        const Ran ran = run("tarn-ulp " + name + " --search 1 --csv --quiet");
        std::istringstream rows(ran.text.substr(ran.text.find('\n') + 1));
        double worst = 0;
        for (std::string row; std::getline(rows, row);) {
            std::vector<std::string> columns;
            std::istringstream line(row);
            for (std::string column; std::getline(line, column, ',');) columns.push_back(column);
            ASSERT_GE(columns.size(), 7u) << row;
            worst = std::max(worst, ulp(columns));
            std::string lanes;
            std::istringstream at(columns[5]);
            Export e;
            ASSERT_TRUE(parse_export(columns[0], e));
            for (std::string lane; at >> lane;)
                for (int i = 0; i < e.width; i++) lanes += ' ' + lane;
            const std::string shown = run("tarn-eval " + name + lanes).text;
            char error[32];
            std::snprintf(error, sizeof error, " %.4g\n", ulp(columns));
            EXPECT_NE(shown.find(error), std::string::npos) << row << '\n' << shown;
        }
        Export e;
        ASSERT_TRUE(parse_export(name, e));
        EXPECT_GE(worst, e.family->worst(e.variant, e.width).ulp * 0.999) << name;
    }
}

// A sweep goes on from its log, a line cut short included, and comes to the same result.
TEST(Sweep, ResumesFromItsLog) {
    const Directory directory;
    const std::string command = "tarn-ulp expf16 --all --from 1 --to 1.1 --log " + directory / "log";
    const auto whole = csv(command);
    std::ifstream in(directory / "log");
    std::string line, part;
    for (int i = 0; i < 100 && std::getline(in, line); i++) part += line + '\n';
    in.close();
    std::ofstream(directory / "log") << part << "101 2.5 0x3f80";
    EXPECT_EQ(csv(command), whole);
    EXPECT_EQ(run("tarn-ulp expf16 --all --from 1 --to 1.2 --quiet 2>/dev/null --log " + directory / "log").status, 2);
}

// Ctrl-C keeps what is done and says how to go on.
TEST(Sweep, SaysHowToResume) {
    const Directory directory;
    const std::string log = directory / "log";
    const Ran ran = run("tarn-ulp expf16 --all --quiet --threads 1 --log " + log + " 2>&1 >/dev/null & p=$!; " +
                        "for i in $(seq 600); do [ -e " + log + " ] && [ $(wc -l < " + log + ") -gt 2 ] && break; sleep 0.05; done; kill -INT $p; wait $p");
    EXPECT_EQ(ran.status, 130);
    EXPECT_EQ(lines(ran.text), 1) << ran.text;
    EXPECT_NE(ran.text.find("resumes from the log"), std::string::npos) << ran.text;
}

// Where stderr is no terminal, a line for every tenth and nothing that moves the cursor; the picture goes to its
// file and nowhere else, with the bound in it.
TEST(Sweep, ProgressAndPlotsAreReadable) {
    const Directory directory;
    const std::string picture = directory / "it's a plot.svg";
    const Ran ran = run("tarn-ulp expf16 --from -80 --to 80 --samples 1e5 2>&1 --plot \"" + picture + '"');
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(lines(ran.text), 11) << ran.text;
    EXPECT_EQ(ran.text.find('\r'), std::string::npos);
    std::ifstream in(picture);
    const std::string svg{std::istreambuf_iterator<char>(in), {}};
    EXPECT_NE(svg.find("OpenCL allows 3"), std::string::npos);
    // A thousand points at least, however few the samples.
    std::size_t points = 0;
    for (std::size_t at = 0; (at = svg.find("<use ", at)) != std::string::npos; at++) points++;
    EXPECT_GT(points, 1000u);
}

}  // namespace
}  // namespace tarn::test
