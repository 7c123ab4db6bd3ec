// Finding the entries of a dictionary.
#include "ResourceDictionary.h"

#include <gtest/gtest.h>

#include "DictionaryText.h"

namespace {

using namespace LocalizationManager::StringLocalizing::Model;

std::u16string Key(int number) {
    const std::string digits = std::to_string(number);
    return u"key" + std::u16string(digits.begin(), digits.end());
}

Value ValueOf(const Operand& operand) {
    Value value;
    Append(value, operand);
    return value;
}

/// All keys are found, once each and with their own values, and no others.
void ExpectFinds(const std::vector<std::u16string>& keys) {
    ResourceDictionary dictionary;
    for (const std::u16string& key : keys) {
        EXPECT_FALSE(dictionary.Find(key));
        EXPECT_TRUE(dictionary.Add(key, ValueOf(KeyRef{key})));
        EXPECT_FALSE(dictionary.Add(key, {}));
        EXPECT_TRUE(dictionary.Find(key));
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i % 3 == 0) {
            dictionary.Replace(dictionary.Find(keys[i]).value(), ValueOf(Param{keys[i]}), 1);
        }
        const auto [key, value] = dictionary.At(dictionary.Find(keys[i]).value());
        EXPECT_EQ(key, keys[i]);
        EXPECT_EQ(lm_test::PrintValue(value), (i % 3 == 0 ? "$" : "") + lm_test::ToUtf8(key));
    }
    EXPECT_EQ(lm_test::EntriesOf(dictionary).size(), keys.size());
    EXPECT_FALSE(dictionary.Find(u"key"));
}

TEST(ResourceDictionaryTest, FindsKeysHoweverTheyHash) {
    std::vector<std::u16string> ordinary{u""};
    std::vector<std::u16string> crowded;
    for (int number = 0; crowded.size() < 200; ++number) {
        if (ordinary.size() < 10'000) {
            ordinary.push_back(Key(number));
        }
        constexpr std::size_t kSlots = 4096;  // more than the table of the crowded keys has
        if (KeyIndex::HashOf(Key(number)) % kSlots == 7) {
            crowded.push_back(Key(number));
        }
    }
    ExpectFinds(ordinary);
    ExpectFinds(crowded);
}

}  // namespace
