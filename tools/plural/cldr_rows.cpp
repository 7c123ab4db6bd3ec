// What CLDR says about whole numbers. Written by scripts/cldr-rules; do not edit.
#include "plural/CldrRow.h"

namespace lm_plural {

// clang-format off
const CldrRow kCldrRows[] = {
    {"ar", "zero one two few many other", "n==0; n==1; n==2; n%100>=3 && n%100<=10; n%100>=11 && n%100<=99;"},
    {"bg", "one other", "n==1;"},
    {"cs", "one few other", "n==1; n>=2 && n<=4;"},
    {"da", "one other", "n==1;"},
    {"de", "one other", "n==1;"},
    {"el", "one other", "n==1;"},
    {"en", "one other", "n==1;"},
    {"es", "one many other", "n==1; n!=0 && n%1000000==0;"},
    {"et", "one other", "n==1;"},
    {"fa", "one other", "n==0 || n==1;"},
    {"fi", "one other", "n==1;"},
    {"fr", "one many other", "(n==0 || n==1); n!=0 && n%1000000==0;"},
    {"ga", "one two few many other", "n==1; n==2; n>=3 && n<=6; n>=7 && n<=10;"},
    {"hu", "one other", "n==1;"},
    {"id", "other", ""},
    {"it", "one many other", "n==1; n!=0 && n%1000000==0;"},
    {"ja", "other", ""},
    {"kk", "one other", "n==1;"},
    {"ko", "other", ""},
    {"lt", "one few other", "n%10==1 && (n%100<11 || n%100>19); n%10>=2 && n%10<=9 && (n%100<11 || n%100>19);"},
    {"lv", "zero one other", "n%10==0 || n%100>=11 && n%100<=19; n%10==1 && n%100!=11;"},
    {"mk", "one other", "n%10==1 && n%100!=11;"},
    {"nb", "one other", "n==1;"},
    {"nl", "one other", "n==1;"},
    {"pl", "one few many other", "n==1; n%10>=2 && n%10<=4 && (n%100<12 || n%100>14); n!=1 && n%10<=1 || n%10>=5 && n%10<=9 || n%100>=12 && n%100<=14;"},
    {"pt", "one many other", "n==1; n!=0 && n%1000000==0;"},
    {"pt-br", "one many other", "n<=1; n!=0 && n%1000000==0;"},
    {"ro", "one few other", "n==1; n==0 || n%100>=2 && n%100<=19;"},
    {"ru", "one few many other", "n%10==1 && n%100!=11; n%10>=2 && n%10<=4 && (n%100<12 || n%100>14); n%10==0 || n%10>=5 && n%10<=9 || n%100>=11 && n%100<=14;"},
    {"sl", "one two few other", "n%100==1; n%100==2; n%100>=3 && n%100<=4;"},
    {"sq", "one other", "n==1;"},
    {"sr-Cyrl", "one few other", "n%10==1 && n%100!=11; n%10>=2 && n%10<=4 && (n%100<12 || n%100>14);"},
    {"sr-Latn", "one few other", "n%10==1 && n%100!=11; n%10>=2 && n%10<=4 && (n%100<12 || n%100>14);"},
    {"sv", "one other", "n==1;"},
    {"tr", "one other", "n==1;"},
    {"uk", "one few many other", "n%10==1 && n%100!=11; n%10>=2 && n%10<=4 && (n%100<12 || n%100>14); n%10==0 || n%10>=5 && n%10<=9 || n%100>=11 && n%100<=14;"},
    {"vi", "other", ""},
    {"zh-Hans", "other", ""},
    {"zh-Hant", "other", ""},
};
// clang-format on
const std::size_t kCldrRowCount = sizeof kCldrRows / sizeof *kCldrRows;

}  // namespace lm_plural
