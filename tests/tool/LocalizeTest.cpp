// Runs `localize` in a shell and compares what it prints and how it ends.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "TempTree.h"

namespace {

struct Answer {
    std::string output;
    std::string errors;
    int status = -1;
};

struct Case {
    std::string arguments;
    std::string output;
    std::string errors;  // a part of it; empty stands for none at all
    int status;
};

std::string Bytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class Localize : public testing::Test {
protected:
    Localize() {
        ::setenv("TREE", SAMPLES "/tree", 1);
        ::setenv("TEMP_TREE", temp_.Root().c_str(), 1);
        ::setenv("LOCALIZE", LOCALIZE, 1);
    }

    /// Runs the command in a shell.
    Answer Run(const std::string& command) const {
        const std::string errors = temp_.Root() / "errors";
        Answer answer;
        std::FILE* const pipe = ::popen(("{ " + command + "; } 2>" + errors).c_str(), "r");
        for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) {
            answer.output.push_back(static_cast<char>(c));
        }
        answer.status = WEXITSTATUS(::pclose(pipe));
        answer.errors = Bytes(errors);
        return answer;
    }

    void Expect(const std::vector<Case>& cases) const {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.arguments);
            const Answer answer = Run("\"$LOCALIZE\" " + c.arguments);
            EXPECT_EQ(answer.output, c.output);
            EXPECT_EQ(answer.errors.empty(), c.errors.empty()) << answer.errors;
            EXPECT_NE(answer.errors.find(c.errors), std::string::npos) << answer.errors;
            EXPECT_EQ(answer.status, c.status);
        }
    }

    lm_test::TempTree temp_;
};

TEST_F(Localize, PrintsWhatTheTreeAnswersAndReportsTheRest) {
    const std::string scope = " --root \"$TREE\" --scope main ";
    const std::string german = scope + "--culture de ";
    Expect({
        {"get" + german + "--param userName=Ada Greeting Menu.Quit",
         "Willkommen zurück, Ada!\nVosperel beenden\n", "", 0},
        {"get --param userName=a=b" + german + "--param userName= Greeting",
         "Willkommen zurück, !\n", "", 0},
        {"get" + scope + "--culture pt-br --param count=0 Files.Selected",
         "0 arquivo selecionado\n", "", 0},
        {"get --alt " SAMPLES "/rebranded" + german + "App.Name", "Calmirot\n", "", 0},
        {"get" + german + "App.Name Nothing Greeting Button.Ok", "Vosperel\nOK\n",
         "localization manager error: cannot get string for key: Nothing, error: ", 1},
        {"get" + german + "--param count=3 --param minutes=1 --trace Backup.Done App.name",
         "3 Dateien in einer Minute gesichert.\nVosperel\n",
         "parameter $count: 3\n"
         "plural form by $count: 3 Dateien\n"
         "plural form by $minutes: einer Minute\n"
         "key Backup.Done from main: 3 Dateien in einer Minute gesichert.\n"
         "key app.name from common: Vosperel\n",
         0},
        {"has" + german + "Greeting BUTTON.ok", "yes\nyes\n", "", 0},
        {"has" + german + "Nothing Greeting ''", "no\nyes\nno\n", "", 1},
        {"has --root \"$TREE\" --scope nowhere --culture de Greeting", "no\n",
         "cannot find localization file", 1},
        {"path" + german + "logo.png", SAMPLES "/tree/de/main/logo.png\n", "", 0},
        {"path" + german + "nothing.png logo.png ''", SAMPLES "/tree/de/main/logo.png\n",
         "localize: nothing.png: Not found\nlocalize: : Invalid argument\n", 1},
        {"cat" + german + "logo.png", Bytes(SAMPLES "/tree/de/main/logo.png"), "", 0},
        {"cat" + german + "nothing.png", "", "localize: nothing.png: Not found\n", 1},
        {"cat" + german + "/", "", "Cannot open file, error: Access denied\n", 1},
    });
}

TEST_F(Localize, EndsAsFailedWithoutATreeAModuleOrAReader) {
    const std::string big(1'000'000, 'x');
    temp_.Write("neutral/main/big", big);
    const std::string cat = "cat --root \"$TEMP_TREE\" --scope main --culture de big ";
    Expect({
        {"get --root /nowhere --scope main --culture de Greeting", "",
         "localize: cannot use the localisation tree: ", 1},
        {"has --module /nowhere/module.so --root \"$TREE\" --scope main --culture de Greeting", "",
         "localize: cannot load module: /nowhere/module.so", 1},
        {cat + "| wc -c", "1000000\n", "", 0},
        {cat + "> /dev/full", "", "localize: cannot write to standard output\n", 1},
        {"--version > /dev/full", "", "localize: cannot write to standard output\n", 1},
    });
    const Answer answer = Run("{ \"$LOCALIZE\" " + cat + "; echo $? >&2; } | true");
    EXPECT_EQ(answer.errors, "localize: cannot write to standard output\n1\n");
}

TEST_F(Localize, AnswersWrongUsageWithTwo) {
    const std::string tree = " --root \"$TREE\" --scope main --culture de ";
    Expect({
        {"", "", "subcommand is required", 2},
        {"print" + tree + "Greeting", "", "subcommand is required", 2},
        {"get --scope main --culture de Greeting", "", "--root is required", 2},
        {"get --root \"$TREE\" --culture de Greeting", "", "--scope is required", 2},
        {"get --root \"$TREE\" --scope main Greeting", "", "--culture is required", 2},
        {"get" + tree, "", "KEY is required", 2},
        {"get" + tree + "--param", "", "--param", 2},
        {"get" + tree + "--param userName Greeting", "", "'userName' is not NAME=VALUE", 2},
        {"get" + tree + "--param =Ada Greeting", "", "'=Ada' is not NAME=VALUE", 2},
        {"has" + tree + "--trace Greeting", "", "--trace", 2},
        {"cat" + tree + "logo.png logo.png", "", "FILE: At Most 1", 2},
        {"get --root \"$TREE\" --scope main --culture klingon Greeting", "",
         "localize: unknown culture 'klingon'\n", 2},
        {"get --root \"$TREE\" --scope main --culture '' Greeting", "", "unknown culture ''", 2},
    });
}

TEST_F(Localize, TellsHelpAndVersion) {
    EXPECT_EQ(Run("\"$LOCALIZE\" --version").output.rfind("localize ", 0), 0U);
    for (const std::string command : {"", "get", "has", "path", "cat"}) {
        const Answer answer = Run("\"$LOCALIZE\" " + command + " --help");
        EXPECT_NE(answer.output.find("Usage: localize " + command), std::string::npos);
        EXPECT_EQ(answer.status, 0);
    }
}

}  // namespace
