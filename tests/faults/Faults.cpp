// The linker sends the component's calls to the platform layer's files to the functions below.
#include "Faults.h"

#include <cstdint>
#include <string_view>

#include "InputFile.h"
#include "Platform.h"
#include "SystemTraits.h"

namespace lm_test::faults {

namespace {

struct Plan {
    bool isActive;
    Source source;
    std::size_t first;
    bool lasts;
    std::size_t calls;
};

// Memory is asked for before and after `main`, too: nothing here needs making.
Plan plan = {};

constexpr Platform::ErrorNumber kGeneralFailure = 31;

}  // namespace

bool Fails(Source source) {
    if (!plan.isActive || plan.source != source) {
        return false;
    }
    ++plan.calls;
    return plan.calls == plan.first || (plan.calls > plan.first && plan.lasts);
}

void Start(Source source, std::size_t first, bool lasts) {
    plan = {true, source, first, lasts, 0};
}

bool Stop() {
    plan.isActive = false;
    return plan.calls >= plan.first;
}

}  // namespace lm_test::faults

using lm_test::faults::Fails;
using lm_test::faults::kGeneralFailure;
using lm_test::faults::Source;
using Platform::ErrorNumber;
using Platform::InputFile;

// Members as functions that are given their object. CMakeLists.txt has the names that the compiler gives them.
#define LM_JOINED_AS_THEY_ARE(first, second) first##second
#define LM_JOINED(first, second) LM_JOINED_AS_THEY_ARE(first, second)
#define LM_REAL(name) LM_JOINED(__real_, name)
#define LM_WRAP(name) LM_JOINED(__wrap_, name)
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" {
ErrorNumber LM_MEMBER_FUNCTION LM_REAL(LM_OPEN)(InputFile* file, std::u16string_view path);
ErrorNumber LM_MEMBER_FUNCTION LM_REAL(LM_READ)(InputFile* file, void* destination,
                                                std::uint32_t wanted, std::uint32_t& read);
ErrorNumber LM_MEMBER_FUNCTION LM_REAL(LM_GET_SIZE)(const InputFile* file, std::int64_t& size);
ErrorNumber LM_REAL(LM_READ_PATH_ATTRIBUTES)(std::u16string_view path,
                                             Platform::PathAttributes& attributes);

ErrorNumber LM_MEMBER_FUNCTION LM_WRAP(LM_OPEN)(InputFile* file, std::u16string_view path) {
    return Fails(Source::Files) ? kGeneralFailure : LM_REAL(LM_OPEN)(file, path);
}

ErrorNumber LM_MEMBER_FUNCTION LM_WRAP(LM_READ)(InputFile* file, void* destination,
                                                std::uint32_t wanted, std::uint32_t& read) {
    return Fails(Source::Files) ? kGeneralFailure
                                : LM_REAL(LM_READ)(file, destination, wanted, read);
}

ErrorNumber LM_MEMBER_FUNCTION LM_WRAP(LM_GET_SIZE)(const InputFile* file, std::int64_t& size) {
    return Fails(Source::Files) ? kGeneralFailure : LM_REAL(LM_GET_SIZE)(file, size);
}

ErrorNumber LM_WRAP(LM_READ_PATH_ATTRIBUTES)(std::u16string_view path,
                                             Platform::PathAttributes& attributes) {
    return Fails(Source::Files) ? kGeneralFailure
                                : LM_REAL(LM_READ_PATH_ATTRIBUTES)(path, attributes);
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)
