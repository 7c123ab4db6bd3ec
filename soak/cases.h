// What the localizers of the soak are made of, mostly hostile, and what they have to answer.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "localization_manager/host/text.h"

namespace soak {

struct Case {
    std::string scope;
    std::string culture;  // ISO name
    std::u16string text;  // of the scope; empty if that is a file of its own kind
    std::u16string key;
    std::string answer;  // the key's text; after a "!" a part of the report, if it cannot be had
};

inline std::u16string Repeat(std::u16string_view text, int times) {
    std::u16string all;
    while (times-- > 0) {
        all += text;
    }
    return all;
}

/// The value of key A, so many plural forms inside each other.
inline std::u16string Nested(int depth) {
    return u"A = " + Repeat(u"{$n: 'x', ", depth) + u"'x'" + Repeat(u"}", depth);
}

/// A value of so many times a thousand units.
inline std::u16string Expanding(int thousands) {
    return u"B = '" + Repeat(u"x", 1000) + u"' A = ''" + Repeat(u" + B", thousands);
}

/// The first three are ordinary ones.
inline std::vector<Case> Cases() {
    const std::u16string greeting = u"Hi = 'Hello ' + $who + ', ' + BRAND";
    const std::u16string files = u"Files = $n + {$n: ' файл', ' файла', ' файлов'}";
    const std::u16string hugeKey(20000, u'k');
    return {
        {"greeting", "en", greeting, u"HI", "Hello Ada, Acme en"},
        {"greeting", "de", greeting, u"hi", "Hello Ada, Acme de"},
        {"plural", "ru", files, u"files", "3 файла"},
        {"plural", "pl", files, u"files", "!Plural.rule line 1 column 7"},
        {"plural", "cs", files, u"files", "!Cannot open file, error: Access denied"},
        {"plural", "lv", files, u"files", "!Cannot find rule entry with id 'lv'"},
        {"plural", "en", files, u"files", "!Invalid plural form count (expected: 2, got: 3"},
        {"plural", "no such culture", files, u"files", "!Unsupported language 99"},
        {"quote", "fr", u"A = 'x' B = 'y", u"a", "!parse error at file"},
        {"nothing", "fr", u";", u"a", "!Key 'a' not found"},
        {"duplicate", "fr", u"A = 'x' a = 'y'", u"a", "!duplicate key found"},
        {"cyclic", "ja", u"A = B B = C C = B", u"a", "!Cyclic reference found:a->(b->c->b)"},
        {"dangling", "ja", u"A = Nowhere", u"a", "!Key 'nowhere' not found"},
        {"inner", "en", u"A = {$n: 'x', B} B = 'y'", u"a", "!Key reference found (b)"},
        {"deep", "en", Nested(64), u"a", "x"},
        {"too_deep", "en", Nested(65), u"a", "!at most 64 nested plural forms"},
        {"long", "en", Expanding(4), u"a", std::string(4000, 'x')},
        {"too_long", "en", Expanding(1100), u"a", "!expands to more than 1048576"},
        {"surrogate", "de", u"A = '\xD800' + $n + '\xDC00'", u"a", "\uFFFD3\uFFFD"},
        {"surrogate_key", "de", u"A = 'x'", u"\xDC00", "!not found"},
        {"huge_key", "de", hugeKey + u" = 'x'", hugeKey, "x"},
        {"refused", "en", u"A = $refused", u"a",
         "!cannot resolve param: refused, error: Not found"},
        {"thrown", "en", u"A = $thrown", u"a", "!error: the host fails"},
        {"no_number", "en", u"A = {$who: 'x', 'y'}", u"a", "!bad lexical cast"},
        {"bytes", "en", u"", u"a", "\uFFFDx"},
        {"missing", "en", u"", u"a", "!cannot find localization file 'missing.lt'"},
        {"directory", "en", u"", u"a", "!Cannot open file, error: Access denied"},
    };
}

inline void Write(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string CommonText(const std::string& culture) {
    return "Brand = 'Acme " + culture + "'";
}

/// Every scope has a file of the tree's name.
inline void WriteTree(const std::filesystem::path& root) {
    for (const Case& each : Cases()) {
        if (!each.text.empty()) {
            Write(root / "neutral/Locs" / (each.scope + ".lt"),
                  localization_manager::host::ToUtf8(each.text));
        }
        Write(root / "neutral" / each.scope / "file", root.filename());
        std::filesystem::create_directories(root / "neutral" / each.scope / "folder");
        Write(root / each.culture / "Locs/common.lt", CommonText(each.culture));
    }
    Write(root / "neutral/Locs/bytes.lt", "A = '\xFFx'");
    std::filesystem::create_directories(root / "neutral/Locs/directory.lt");
    Write(root / "pl/Plural.rule", "n == 1");
    std::filesystem::create_directories(root / "cs/Plural.rule");
    Write(root / "lv/Plural.rule", "n == 1; n == 2; n == 4;");
}

}  // namespace soak
