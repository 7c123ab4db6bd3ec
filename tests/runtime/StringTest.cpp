// Framework strings: where the characters live, how they grow, and where that ends.
#include <gtest/gtest.h>

#include <cstring>

#include "FakeServiceLocator.h"
#include "qor/basic_string_t.h"

namespace {

using namespace qor;
using namespace std::literals;
using lm_test::FakeAllocator;
using lm_test::Make;
using lm_test::References;

template <class Error, class Call>
std::string ErrorText(Call call) {
    try {
        call();
    } catch (const Error& caught) {
        return caught.what();
    }
    return "none";
}

class StringTest : public testing::Test {
protected:
    ~StringTest() override { EXPECT_EQ(References(*source_), 1U); }

    template <class String>
    String Text(std::size_t length) const {
        using Unit = typename String::value_type;
        std::basic_string<Unit> text;
        for (std::size_t i = 0; i < length; ++i) {
            text.push_back(static_cast<Unit>('a' + i % 26));
        }
        return String(text, Allocator<Unit>(source_.get()));
    }

    template <class String>
    void ExpectStorage(const String& string, std::size_t capacity, std::size_t blocks) const {
        EXPECT_EQ(string.capacity(), capacity) << string.size();
        EXPECT_EQ(source_->LiveBlocks(), blocks) << string.size();
        EXPECT_EQ(string.c_str()[string.size()], 0);
        const auto* const object = reinterpret_cast<const char*>(&string);
        const auto* const data = reinterpret_cast<const char*>(string.c_str());
        EXPECT_EQ(data >= object && data < object + sizeof string, blocks == 0);
    }

    const objptr_t<FakeAllocator> source_ = Make<FakeAllocator>();
};

TEST_F(StringTest, ShortTextsLiveInTheObjectAndLongerOnesInStorage) {
    ExpectStorage(Text<string16_t>(7), 7, 0);
    ExpectStorage(Text<string16_t>(8), 14, 1);
    ExpectStorage(Text<string16_t>(15), 15, 1);
    ExpectStorage(Text<string8_t>(15), 15, 0);
    ExpectStorage(Text<string8_t>(16), 30, 1);
    ExpectStorage(Text<string8_t>(100), 100, 1);
    EXPECT_EQ(source_->LastSize(), 101U);
    auto growing = Text<string16_t>(7);
    for (const std::size_t capacity : {14U, 28U, 56U}) {
        growing.append(growing.capacity() - growing.size() + 1, u'x');
        ExpectStorage(growing, capacity, 1);
    }
}

TEST_F(StringTest, ACopySharesTheAllocatorAndAnAssignmentKeepsItsOwn) {
    for (const std::size_t length : {3U, 20U}) {
        const auto other = Make<FakeAllocator>();
        string16_t assigned(u"before", Allocator<char16_t>(other.get()));
        string16_t onHeap;
        {
            const auto string = Text<string16_t>(length);
            const string16_t copy(string);
            EXPECT_EQ(copy, string);
            EXPECT_EQ(copy.get_allocator().source(), source_.get());
            EXPECT_EQ(References(*source_), 3U);
            assigned = string;
            onHeap = copy.substr(1);
            EXPECT_EQ(source_->LiveBlocks(), length > 7 ? 2U : 0U);
            EXPECT_EQ(other->LiveBlocks(), length > 7 ? 1U : 0U);
        }
        EXPECT_EQ(assigned, Text<string16_t>(length));
        EXPECT_EQ(onHeap, Text<string16_t>(length).substr(1));
        EXPECT_EQ(assigned.get_allocator().source(), other.get());
        EXPECT_EQ(onHeap.get_allocator().source(), nullptr);
    }
}

TEST_F(StringTest, MovingAndSwappingTakeTheStorageAlong) {
    for (const std::size_t left : {3U, 20U}) {
        auto from = Text<string8_t>(left);
        string8_t to(std::move(from));
        EXPECT_EQ(to, Text<string8_t>(left));
        EXPECT_EQ(from, string8_t());
        for (const std::size_t right : {5U, 40U}) {
            auto other = Text<string8_t>(right);
            to.swap_contents(other);
            EXPECT_EQ(to, Text<string8_t>(right));
            EXPECT_EQ(other, Text<string8_t>(left));
            to.swap_contents(other);
        }
    }
}

TEST_F(StringTest, AppendingAPartOfItselfWorks) {
    for (const std::size_t length : {3U, 7U, 10U, 14U}) {
        const std::u16string before(Text<string16_t>(length).view());
        auto string = Text<string16_t>(length);
        string.append(string.view());
        string.append(string.c_str() + 1, 2);
        string.append(string, length, string16_t::npos);
        const std::u16string grown = before + before + before.substr(1, 2);
        EXPECT_EQ(string.view(), grown + grown.substr(length));
        string = string.view().substr(2);
        EXPECT_EQ(string.view(), (grown + grown.substr(length)).substr(2));
    }
}

TEST_F(StringTest, PartsAreCutToWhatIsThereAndInsertsMoveTheRest) {
    const auto string = Text<string8_t>(4);
    EXPECT_EQ(string8_t(string, 1, 2).view(), "bc");
    EXPECT_EQ(string8_t(string, 3, 100).view(), "d");
    EXPECT_EQ(string8_t(string, 4, 1).view(), "");
    EXPECT_EQ(ErrorText<std::out_of_range>([&] { string8_t(string, 5, 0); }),
              "qor::basic_string_t::append()");
    auto longer = Text<string8_t>(14);
    longer.insert(2, "-", 1).insert(15, "--", 2).insert(0, "+", 1);
    EXPECT_EQ(longer.view(), "+ab-cdefghijklmn--");
}

TEST_F(StringTest, WithoutMemoryAStringStaysAsItWas) {
    for (const std::size_t length : {7U, 14U}) {
        auto string = Text<string16_t>(length);
        const auto before = Text<string16_t>(length);
        const auto longer = Text<string16_t>(50);
        source_->FailAt(1);
        EXPECT_THROW(string.append(u"12345678"), std::bad_alloc);
        EXPECT_THROW(string.insert(1, u"12345678", 8), std::bad_alloc);
        EXPECT_THROW(string = longer, std::bad_alloc);
        EXPECT_THROW(string16_t{longer}, std::bad_alloc);
        source_->Recover();
        EXPECT_EQ(string, before);
        EXPECT_EQ(string.capacity(), before.capacity());
    }
}

/// Makes a string believe that it is full with `size` characters.
template <class String>
void Forge(String& string, std::uint32_t size) {
    auto* const fields = reinterpret_cast<unsigned char*>(&string) + sizeof(void*);
    std::memcpy(fields, &size, sizeof size);
    std::memcpy(fields + sizeof size, &size, sizeof size);
}

template <class String>
void ExpectLimit(FakeAllocator& source, std::uint32_t limit) {
    using Unit = typename String::value_type;
    const Unit text[] = {'x', 0};
    String string{Allocator<Unit>(&source)};
    const auto expectText = [](const char* text, auto call) {
        EXPECT_EQ(ErrorText<std::length_error>(call), text);
    };
    for (const std::uint32_t size : {std::uint32_t{0}, limit - 5}) {
        Forge(string, size);
        const std::size_t over = limit - size;
        expectText("qor::basic_string_t::reserve_extra()", [&] { string.append(over, Unit('x')); });
        expectText("qor::basic_string_t::resize_extra_at",
                   [&] { string.resize_extra_at(0, over); });
        expectText("qor::basic_string_t::insert", [&] { string.insert(0, text, over); });
        EXPECT_THROW(string.append(over - 1, Unit('x')), std::bad_alloc) << "the last that fits";
        // What was asked for: up to the limit, though twice the capacity would be more.
        EXPECT_EQ(source.LastSize(), (size == 0 ? limit : limit + std::size_t{1}) * sizeof(Unit));
        EXPECT_EQ(string.size(), size);
    }
    expectText("qor::basic_string_t constructor", [&] { String(text, 0x80000000U); });
}

TEST_F(StringTest, EveryLimitHasItsText) {
    ExpectLimit<string16_t>(*source_, 0x7FFFFFFF);
    ExpectLimit<string8_t>(*source_, 0xFFFFFFFE);
}

}  // namespace
