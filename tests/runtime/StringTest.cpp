// Framework strings: where the characters live, how they grow, and where that ends.
#include <gtest/gtest.h>

#include <cstring>
#include <numeric>

#include "ErrorText.h"
#include "FakeServiceLocator.h"
#include "qor/basic_string_t.h"

namespace {

using namespace qor;
using lm_test::ErrorText;
using lm_test::FakeAllocator;
using lm_test::Make;

class StringTest : public testing::Test {
protected:
    ~StringTest() override { EXPECT_EQ(lm_test::References(*source_), 1U); }

    template <class String = string16_t>
    String Text(std::size_t length) const {
        using Unit = typename String::value_type;
        std::basic_string<Unit> text(length, 'a');
        std::iota(text.begin(), text.end(), Unit('a'));
        return String(text, Allocator<Unit>(source_.get()));
    }

    template <class String>
    void ExpectStorage(const String& string, std::size_t capacity, std::size_t blocks) const {
        EXPECT_EQ(string.capacity(), capacity) << string.size();
        EXPECT_EQ(source_->live.size(), blocks) << string.size();
        EXPECT_EQ(string.c_str()[string.size()], 0);
    }

    const objptr_t<FakeAllocator> source_ = Make<FakeAllocator>();
};

TEST_F(StringTest, ShortTextsLiveInTheObjectAndLongerOnesInStorage) {
    ExpectStorage(Text<string8_t>(15), 15, 0);
    ExpectStorage(Text<string8_t>(16), 30, 1);
    ExpectStorage(Text<string8_t>(100), 100, 1);
}

TEST_F(StringTest, ACopySharesTheAllocatorAndAnAssignmentKeepsItsOwn) {
    for (const std::size_t length : {3U, 20U}) {
        const auto other = Make<FakeAllocator>();
        string16_t assigned(u"before", Allocator<char16_t>(other.get()));
        {
            const auto string = Text(length);
            string16_t copy(string);
            copy.append(u"!");
            EXPECT_EQ(copy.get_allocator().source(), source_.get());
            assigned = string;
            EXPECT_EQ(source_->live.size(), length > 7 ? 2U : 0U);
            EXPECT_EQ(other->live.size(), length > 7 ? 1U : 0U);
        }
        EXPECT_EQ(assigned, Text(length));
        EXPECT_EQ(assigned.get_allocator().source(), other.get());
    }
}

TEST_F(StringTest, SwappingTakesTheStorageAlong) {
    for (const auto& [left, right] : {std::pair(3U, 5U), {3U, 40U}, {20U, 5U}, {20U, 40U}}) {
        auto other = Text(right);
        auto from = Text(left);
        string16_t moved(std::move(from));
        moved.swap_contents(other);
        EXPECT_EQ(moved, Text(right));
        EXPECT_EQ(other, Text(left));
    }
}

TEST_F(StringTest, AppendingAPartOfItselfWorks) {
    for (const std::size_t length : {3U, 7U, 10U, 14U}) {
        auto string = Text(length);
        const std::u16string before(string.view());
        string.append(string.view());
        string.append(string.c_str() + 1, 2);
        EXPECT_EQ(string.view(), before + before + before.substr(1, 2));
        string = string.view().substr(length);
        EXPECT_EQ(string.view(), before + before.substr(1, 2));
    }
}

TEST_F(StringTest, PartsAreCutToWhatIsThereAndInsertsMoveTheRest) {
    auto string = Text<string8_t>(14);
    EXPECT_EQ(string8_t(string, 13, 100).view(), "n");
    EXPECT_EQ(ErrorText<std::out_of_range>([&] { string8_t(string, 15, 0); }),
              "qor::basic_string_t::append()");
    string.insert(2, "-", 1).insert(15, "--", 2).insert(0, "+", 1);
    EXPECT_EQ(string.view(), "+ab-cdefghijklmn--");
}

TEST_F(StringTest, WithoutMemoryAStringStaysAsItWas) {
    for (const std::size_t length : {7U, 14U}) {
        auto string = Text(length);
        const auto longer = Text(50);
        source_->exhausted = true;
        EXPECT_THROW(string.append(u"12345678"), std::bad_alloc);
        EXPECT_THROW(string.insert(1, u"12345678", 8), std::bad_alloc);
        EXPECT_THROW(string = longer, std::bad_alloc);
        source_->exhausted = false;
        EXPECT_EQ(string, Text(length));
        EXPECT_EQ(string.capacity(), length);
    }
}

template <class String>
void ExpectLimit(FakeAllocator& source, std::uint32_t limit) {
    using Unit = typename String::value_type;
    const Unit text[] = {'x', 0};
    String string{Allocator<Unit>(&source)};
    const auto error = [](auto call) { return ErrorText<std::length_error>(call); };
    for (const std::uint32_t size : {std::uint32_t{0}, limit - 5}) {
        // Makes the string believe that it is full.
        const std::uint32_t sizeAndCapacity[] = {size, size};
        std::memcpy(reinterpret_cast<char*>(&string) + sizeof(void*), sizeAndCapacity, 8);
        const std::size_t over = limit - size;
        EXPECT_EQ(error([&] { string.append(over, text[0]); }),
                  "qor::basic_string_t::reserve_extra()");
        EXPECT_EQ(error([&] { string.resize_extra_at(0, over); }),
                  "qor::basic_string_t::resize_extra_at");
        EXPECT_EQ(error([&] { string.insert(0, text, over); }), "qor::basic_string_t::insert");
        EXPECT_THROW(string.append(over - 1, text[0]), std::bad_alloc) << "the last that fits";
        // What was asked for: up to the limit, though twice the capacity would be more.
        EXPECT_EQ(source.lastSize, (size == 0 ? limit : limit + std::size_t{1}) * sizeof(Unit));
        EXPECT_EQ(string.size(), size);
    }
    EXPECT_EQ(error([&] { String(text, 0x80000000U); }), "qor::basic_string_t constructor");
}

TEST_F(StringTest, EveryLimitHasItsText) {
    ExpectLimit<string16_t>(*source_, 0x7FFFFFFF);
    ExpectLimit<string8_t>(*source_, 0xFFFFFFFE);
}

}  // namespace
