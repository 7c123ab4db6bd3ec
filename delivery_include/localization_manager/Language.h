// The languages that have a name and a plural rule.
#pragma once

#include <cstdint>

namespace localization_manager {

/// The values are part of the binary contract; the comments give the ISO names.
enum class Language : std::uint32_t {
    Arabic = 0,              // ar
    Albanian = 1,            // sq
    Bulgarian = 2,           // bg
    ChineseTraditional = 3,  // zh-Hant
    ChineseSimplified = 4,   // zh-Hans
    Czech = 5,               // cs
    Danish = 6,              // da
    Dutch = 7,               // nl
    English = 8,             // en
    Estonian = 9,            // et
    Persian = 10,            // fa
    Finnish = 11,            // fi
    French = 12,             // fr
    German = 13,             // de
    Greek = 14,              // el
    Hungarian = 15,          // hu
    Indonesian = 16,         // id
    Irish = 17,              // ga
    Italian = 18,            // it
    Japanese = 19,           // ja
    Kazakh = 20,             // kk
    Korean = 21,             // ko
    Lithuanian = 22,         // lt
    Latvian = 23,            // lv
    Macedonian = 24,         // mk
    NorwegianBokmal = 25,    // nb
    Portuguese = 26,         // pt
    Polish = 27,             // pl
    Russian = 28,            // ru
    Romanian = 29,           // ro
    Spanish = 30,            // es
    SerbianCyrillic = 31,    // sr-Cyrl
    SerbianLatin = 32,       // sr-Latn
    Slovenian = 33,          // sl
    Swedish = 34,            // sv
    Turkish = 35,            // tr
    Ukrainian = 36,          // uk
    Vietnamese = 37,         // vi
};

}  // namespace localization_manager
