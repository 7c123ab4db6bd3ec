// Framework strings: where the characters live, how they grow, and where that ends.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
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

    const objptr_t<FakeAllocator> source_ = Make<FakeAllocator>();
};

TEST_F(StringTest, ACopySharesTheAllocatorAnAssignmentKeepsItsOwnAndAMoveTakesWhatItCan) {
    const auto other = Make<FakeAllocator>();
    for (const auto& [allocator, length] : {std::pair(source_, 5U), {source_, 40U}, {other, 40U}}) {
        string16_t target(u"1234567", Allocator<char16_t>(allocator.get()));
        target.append(u"8");  // leaves behind in the object what no shorter text may show again
        auto text = Text(length);
        EXPECT_EQ(string16_t(text).append(u"!").get_allocator().source(), source_.get());
        const auto* const storage = text.data();
        target = std::move(text);
        EXPECT_EQ(target.data() == storage, length == 40 && allocator.get() == source_.get());
        EXPECT_EQ(string16_t(target.c_str()), Text(length));
        const auto longer = Text(length + 1);
        target = longer;
        EXPECT_EQ(target, longer);
        EXPECT_EQ(target.get_allocator().source(), allocator.get());
    }
}

TEST_F(StringTest, AppendingAPartOfItselfWorks) {
    for (const std::size_t length : {3U, 7U, 10U, 14U}) {
        auto string = Text(length);
        const std::u16string before(string.view());
        string.append(string.view());
        string.append(string, 1, 2).append(string, 2 * length + 1, 9).insert(1, u"-+", 2);
        const std::u16string all = before + before + before.substr(1, 2) + before.substr(2, 1);
        EXPECT_EQ(string.view(), all.substr(0, 1) + u"-+" + all.substr(1));
        string = string.view().substr(length);
        EXPECT_EQ(string.view(), (u"-+" + all).substr(length));
    }
}

TEST_F(StringTest, WithoutMemoryAStringStaysAsItWas) {
    for (const std::size_t length : {7U, 14U}) {
        auto string = Text(length);
        const auto longer = Text(50);
        source_->exhausted = true;
        EXPECT_EQ(ErrorText<std::bad_alloc>([&] { string.append(u"12345678"); }), "bad allocation");
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
        const std::uint64_t bytes =
            (size == 0 ? limit : limit + std::uint64_t{1}) * std::uint64_t{sizeof(Unit)};
        if (bytes <= std::numeric_limits<std::size_t>::max()) {  // nobody is asked for more
            EXPECT_EQ(source.lastSize, bytes);
        }
        EXPECT_EQ(string.size(), size);
    }
    EXPECT_EQ(error([&] { String(text, 0x80000000U); }), "qor::basic_string_t constructor");
    EXPECT_EQ(ErrorText<std::out_of_range>([&] { String(String(text), 2, 0); }),
              "qor::basic_string_t::append()");
}

TEST_F(StringTest, EveryLimitHasItsText) {
    ExpectLimit<string16_t>(*source_, 0x7FFFFFFF);
    ExpectLimit<string8_t>(*source_, 0xFFFFFFFE);
}

}  // namespace
