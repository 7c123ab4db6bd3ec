// Finding the entries of a dictionary.
#include "ResourceDictionary.h"

#include <gtest/gtest.h>

#include <new>

#include "DictionaryText.h"
#include "Faults.h"

namespace {

using namespace LocalizationManager::StringLocalizing::Model;

std::u16string Key(int number) {
    const std::string digits = std::to_string(number);
    return u"key" + std::u16string(digits.begin(), digits.end());
}

Value KeyRefTo(std::u16string_view key) {
    Value value;
    value.AppendKeyRef(key);
    return value;
}

Value ParamOf(std::u16string_view name) {
    Value value;
    value.AppendParam(name);
    return value;
}

/// Adds an entry, once no allocation fails any more.
bool AddAtLast(ResourceDictionary& dictionary, std::u16string_view key, const Value& value) {
    for (std::size_t call = 1;; ++call) {
        lm_test::faults::Start(lm_test::faults::Source::Memory, call, false);
        try {
            const bool isNew = dictionary.Add(key, value);
            lm_test::faults::Stop();
            return isNew;
        } catch (const std::bad_alloc&) {
            lm_test::faults::Stop();
        }
    }
}

/// All keys are found, once each and with their own values, and no others.
void ExpectFinds(const std::vector<std::u16string>& keys) {
    ResourceDictionary dictionary;
    for (const std::u16string& key : keys) {
        EXPECT_FALSE(dictionary.Find(key));
        EXPECT_TRUE(AddAtLast(dictionary, key, KeyRefTo(key)));
        EXPECT_FALSE(dictionary.Add(key, {}));
        EXPECT_TRUE(dictionary.Find(key));
    }
    std::size_t count = 0;
    dictionary.ForEach([&](auto) { ++count; });
    EXPECT_EQ(count, keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i % 3 == 0) {
            dictionary.Replace(dictionary.Find(keys[i]).value(), ParamOf(keys[i]), 1);
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
