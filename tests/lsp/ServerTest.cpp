// What the language server answers, from the sessions beside this file, and what it survives.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "TempTree.h"
#include "lsp/Inbox.h"
#include "lsp/OpenText.h"
#include "lsp/Server.h"
#include "lsp/frames.h"
#include "lsp/places.h"
#include "lsp/serve.h"
#include "lsp/uri.h"

namespace {

using lm_lsp::Inbox;
using lm_lsp::Json;

/// Ranges as "2:0-2:4" and diagnostics as "code 2:0-2:4" with related places, so that a reply can be read.
void Shorten(Json& value) {
    if (value.is_structured()) {
        for (Json& part : value) {
            Shorten(part);
        }
    }
    if (value.is_object() && value.contains("start") && value.contains("end")) {
        const auto place = [&](const char* end) {
            return value[end]["line"].dump() + ':' + value[end]["character"].dump();
        };
        value = place("start") + '-' + place("end");
    }
    if (value.is_object() && value.contains("code") && value.contains("range")) {
        std::string brief =
            value["code"].get<std::string>() + ' ' + value["range"].get<std::string>();
        for (const Json& related : value.value("relatedInformation", Json::array())) {
            brief += " see " + related["location"]["range"].get<std::string>();
        }
        value = brief;
    }
}

void Replace(std::string& text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos;
         at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
}

/// What is wrong with a file in one line; the words are the check's.
std::string Brief(const Json& params) {
    std::string text =
        params["uri"].get<std::string>() + ' ' + params.value("version", Json()).dump();
    std::map<std::string, int> counts;
    for (const Json& diagnostic : params["diagnostics"]) {
        ++counts[diagnostic.get<std::string>()];
    }
    for (const auto& [what, count] : counts) {
        text += ", " + what + (count > 1 ? " x" + std::to_string(count) : "");
    }
    return text;
}

class Session {
public:
    using Files = std::vector<std::pair<std::string, std::string>>;

    explicit Session(const Files& files)
        : server_({"1", [this](const Json& message) { Note(message); }, [] { return false; },
                   [this] { return refusal_; }}) {
        for (const auto& [path, text] : files) {
            tree_.Write(path, text);
        }
        uri_ = lm_lsp::UriOf(tree_.Root());
    }

    /// @param line  "METHOD PARAMS" for a request, "METHOD! PARAMS" for a notification, "METHOD? PARAMS" for a
    ///              request that is cancelled while it runs; FILE@LINE:COLUMN among the parameters stands
    ///              for a place.
    std::string Run(std::string line) {
        heard_.clear();
        Replace(line, "TREE", uri_);
        const std::size_t blank = line.find(' ');
        std::string method = line.substr(0, blank);
        Json message = {{"jsonrpc", "2.0"}};
        message["params"] = Json::parse(line.substr(blank), nullptr, false);
        if (Json& params = message["params"]; params.is_object() && params.contains("at")) {
            const auto at = params["at"].get<std::string>();
            unsigned row = 0;
            unsigned column = 0;
            char sign = ' ';
            std::istringstream(at.substr(at.find('@') + 1)) >> row >> sign >> column;
            params["textDocument"]["uri"] = uri_ + '/' + at.substr(0, at.find('@'));
            params["position"] = {{"line", row}, {"character", column}};
            params["range"] = {{"start", params["position"]}, {"end", params["position"]}};
            params.erase("at");
        }
        const bool isNotification = method.back() == '!';
        const bool isCancelled = method.back() == '?';
        if (isNotification || isCancelled) {
            method.pop_back();
        }
        if (!isNotification) {
            message["id"] = 1;
        }
        message["method"] = method;
        if (isCancelled) {
            refusal_.emplace(lm_lsp::ErrorCode::RequestCancelled, "cancelled");
        }
        server_.Handle({message, {}});
        refusal_.reset();
        while (server_.Delay()) {
            server_.Work();
        }
        return heard_;
    }

private:
    void Note(const Json& message) {
        Json said = message;
        Shorten(said);
        std::string text;
        if (said.contains("result")) {
            text = said["result"].dump();
        } else if (said.contains("error")) {
            text = "error " + said["error"]["code"].dump() + ' ' +
                   said["error"]["message"].get<std::string>();
        } else if (said["params"].contains("diagnostics")) {
            text = Brief(said["params"]);
        } else {
            text = said["params"]["message"].get<std::string>();
        }
        Replace(text, uri_, "TREE");
        Replace(text, tree_.Root().generic_u8string(), "ROOT");
        heard_ += "< " + text + '\n';
    }

    lm_test::TempTree tree_;
    std::string uri_;
    std::string heard_;
    std::optional<lm_lsp::RequestError> refusal_;
    lm_lsp::Server server_;
};

TEST(ServerTest, SessionsGoAsExpected) {
    std::ifstream file(SESSIONS);
    std::unique_ptr<Session> session;
    Session::Files files;
    std::string expected;
    std::string heard;
    std::string asked;
    const auto compare = [&] {
        EXPECT_EQ(heard, expected) << asked;
        expected.clear();
        heard.clear();
    };
    int count = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.compare(0, 2, "==") == 0) {
            compare();
            session = std::make_unique<Session>(files);
        } else if (line.compare(0, 2, "> ") == 0) {
            compare();
            asked = line;
            heard = session->Run(line.substr(2));
            ++count;
        } else if (line.compare(0, 2, "@ ") == 0) {
            const std::size_t blank = line.find(' ', 2);
            Replace(line, "|", "\n");
            files.emplace_back(line.substr(2, blank - 2), line.substr(blank + 1) + '\n');
        } else if (line.compare(0, 2, "< ") == 0) {
            expected += line + '\n';
        }
    }
    compare();
    EXPECT_GT(count, 20);
}

TEST(ServerTest, AmongManyMistakesFewChangesAreOffered) {
    const std::vector<std::pair<std::string, std::size_t>> cases = {
        {"'it's'", 20},
        {R"('a\\p')", 40},  // each can be mended or ignored
        {"'a' + $gone", 20},
    };
    const auto lines = [](const std::string& text, const char* lineBreak) {
        std::string all;
        for (int line = 0; line < 30; ++line) {
            all.append("K").append(std::to_string(line)).append(" = " + text + lineBreak);
        }
        return all;
    };
    for (const auto& [text, expected] : cases) {
        Session session({{"en/Locs/main.lt", lines("'x'", "\n")},
                         {"en/Locs/common.lt", ""},
                         {"de/Locs/common.lt", ""},
                         {"de/Locs/main.lt", ""}});
        session.Run("initialize {}");
        session.Run(
            R"(textDocument/didOpen! {"textDocument":{"uri":"TREE/de/Locs/main.lt","text":")" +
            lines(text, R"(\n)") + R"("}})");
        const std::string offers = session.Run(
            R"(textDocument/codeAction {"textDocument":{"uri":"TREE/de/Locs/main.lt"},)"
            R"("range":{"start":{"line":1,"character":0},"end":{"line":99,"character":0}}})");
        std::size_t count = 0;
        for (std::size_t at = offers.find(R"("title")"); at != std::string::npos;
             at = offers.find(R"("title")", at + 1)) {
            ++count;
        }
        EXPECT_EQ(count, expected) << text << '\n' << offers.substr(0, 1000);
    }
}

std::string Framed(const std::string& content) {
    return "Content-Length: " + std::to_string(content.size()) + "\r\n\r\n" + content;
}

/// The codes of the errors that a stream is answered with, and how the server ends.
std::string Outcome(const std::string& stream) {
    std::istringstream in(stream);
    std::ostringstream out;
    std::string outcome = lm_lsp::Serve(in, out, "1") ? "good" : "bad";
    std::istringstream replies(out.str());
    while (const auto content = lm_lsp::ReadFrame(replies)) {
        const Json reply = Json::parse(*content);
        outcome += ' ' + (reply.contains("error") ? reply["error"]["code"].dump() : "ok");
    }
    return outcome;
}

TEST(ServerTest, BadStreamsEndWell) {
    const std::string initialize = Framed(R"({"id":0,"method":"initialize","params":{}})");
    const std::string end =
        Framed(R"({"id":9,"method":"shutdown"})") + Framed(R"({"method":"exit"})");
    const auto session = [&](const std::string& messages) { return initialize + messages + end; };
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "bad"},
        {session(""), "good ok ok"},
        {initialize + Framed(R"({"method":"exit"})"), "bad ok"},
        {Framed(R"({"id":1,"method":"shutdown"})") + session(""), "good -32002 ok ok"},
        {session(initialize), "good ok -32600 ok"},
        {session(Framed("{")), "good ok -32700 ok"},
        {session(Framed("\"\xFF\"")), "good ok -32700 ok"},
        {session(Framed(R"({"id":1,"method":")" + std::string(1, '\xC3') + "\"}")),
         "good ok -32700 ok"},
        {session(Framed(std::string(1'000'000, '[') + std::string(1'000'000, ']'))),
         "good ok -32700 ok"},
        {session(Framed("[]") + Framed("7") + Framed(R"({"id":1,"method":2})")),
         "good ok -32600 -32600 -32600 ok"},
        {session(Framed(R"({"id":1,"method":"no/such"})") + Framed(R"({"method":"no/such"})")),
         "good ok -32601 ok"},
        {session(Framed(R"({"id":1,"method":"textDocument/hover","params":[]})")),
         "good ok -32602 ok"},
        {session(Framed(R"({"id":1,"result":{}})")), "good ok ok"},
        {session(Framed(R"({"id":1,"method":"\")" + std::string(100, '[') + "\"}")),
         "good ok -32601 ok"},
        {session("content-length:2\r\nContent-Type: x\r\n\r\n{}"), "good ok ok"},
        {initialize + "Content-Length: 10\r\n\r\n{}", "bad ok -32700"},
        {initialize + "Content-Length: -1\r\n\r\n" + end, "bad ok -32700"},
        {initialize + "Content-Length: 99999999999999999999\r\n\r\n" + end, "bad ok -32700"},
        {initialize + "Content-Length: 4294967296\r\n\r\n" + end, "bad ok -32700"},
        {initialize + "Content-Length: 2 2\r\n\r\n{}" + end, "bad ok -32700"},
        {initialize + "\r\n" + end, "bad ok -32700"},
        {initialize + "no header\r\n\r\n" + end, "bad ok -32700"},
        {initialize + std::string(10'000, 'x'), "bad ok -32700"},
        {initialize + "Content-Length: 2\r\n", "bad ok -32700"},
    };
    for (const auto& [stream, expected] : cases) {
        EXPECT_EQ(Outcome(stream), expected) << stream.substr(0, 300);
    }
}

TEST(ServerTest, NeedlessRequestsAreRefusedBeforeTheirTurn) {
    const auto request = [](int id, const std::string& uri) {
        return R"({"id":)" + std::to_string(id) +
               R"(,"method":"textDocument/hover","params":{"textDocument":{"uri":")" + uri +
               "\"}}}";
    };
    std::istringstream in(
        Framed(request(1, "a")) + Framed(request(2, "b")) + Framed(request(3, "b")) +
        Framed(R"({"method":"$/cancelRequest","params":{"id":3}})") +
        Framed(R"({"method":"textDocument/didChange","params":{"textDocument":{"uri":"a"}}})") +
        Framed(request(4, "a")));
    Inbox inbox;
    inbox.ReadAll(in);
    std::string refusals;
    while (const auto* const message = inbox.Take(std::nullopt)) {
        refusals += message->refusal
                        ? std::to_string(static_cast<int>(message->refusal->Code())) + ' '
                        : "none ";
    }
    EXPECT_EQ(refusals, "-32801 none -32800 none none ");
    EXPECT_TRUE(inbox.IsAtEnd());
}

TEST(ServerTest, TheRequestThatIsBeingAnsweredCanBecomeNeedless) {
    const auto request = [](int id, const char* method) {
        return Json{{"id", id},
                    {"method", method},
                    {"params", {{"id", 1}, {"textDocument", {{"uri", "a"}}}}}};
    };
    for (const auto& [method, expected] :
         std::vector<std::pair<const char*, int>>{{"$/cancelRequest", -32800},
                                                  {"textDocument/didChange", -32801},
                                                  {"textDocument/didOpen", 0}}) {
        Inbox inbox;
        inbox.Add({request(1, "textDocument/references"), {}});
        inbox.Add({request(2, "shutdown"), {}});
        ASSERT_NE(inbox.Take(std::nullopt), nullptr);
        EXPECT_FALSE(inbox.Refusal());
        inbox.Add({request(3, method), {}});
        const auto refusal = inbox.Refusal();
        EXPECT_EQ(refusal ? static_cast<int>(refusal->Code()) : 0, expected) << method;
        EXPECT_EQ(inbox.Take(std::nullopt)->refusal.has_value(), expected == -32801);
        EXPECT_FALSE(inbox.Refusal()) << "the next one is wanted";
    }
}

TEST(ServerTest, EditsMakeOneTextOfAnother) {
    const std::vector<std::string> texts = {"",        "a",    "a\n",     "a\na\n",
                                            "a\na\na", "b\na", "a\nb\na", "a\r\nb\r\n"};
    for (const std::string& before : texts) {
        for (const std::string& after : texts) {
            Json changes = lm_lsp::EditsBetween(before, after);
            for (Json& change : changes) {
                change["text"] = change["newText"];
            }
            std::reverse(changes.begin(),
                         changes.end());  // their ranges are those of the text before
            lm_lsp::OpenText text(before, std::nullopt);
            text.Change(changes, std::nullopt);
            EXPECT_EQ(text.Bytes(), after) << "made of " << before;
        }
    }
}

TEST(ServerTest, PathsAndUrisLeadToEachOther) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"file:///a/b%20c/%D1%8F.lt", "/a/b c/я.lt"},
        {"file:///a/../b/./c", "/b/c"},
        {"file://host/a", "-"},
        {"untitled:1", "-"},
        {"file:///a%0", "-"},
        {"file:///a%G0", "-"},
        {"file:///a%00", "-"},
        {"file:///a%FF", "-"},
    };
    for (const auto& [uri, expected] : cases) {
        const auto path = lm_lsp::PathOfUri(uri);
        EXPECT_EQ(path ? path->generic_u8string() : "-", expected) << uri;
    }
    EXPECT_EQ(lm_lsp::UriOf(std::filesystem::u8path("/a/b c/я.lt")), cases.front().first);
}

}  // namespace
