// The host kit behind a C header.
#define LMC_BUILDS_LIBRARY
#include "localization_manager/c/localization_manager.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "localization_manager/host/CultureChoice.h"
#include "localization_manager/host/Tree.h"

namespace host = localization_manager::host;

struct lmc_tree {
    host::Tree tree;
};

struct lmc_texts {
    host::Texts texts;
};

namespace {

/// Of the calling thread.
std::string& LastError() {
    thread_local std::string error;
    return error;
}

void SetLastError(std::string_view error) noexcept {
    try {
        LastError() = error;
    } catch (...) {
        LastError().clear();
    }
}

/// Calls a function of the kit; what it throws becomes the thread's error.
template <class Result, class Function>
Result Guarded(Result onFailure, const Function& function) noexcept {
    try {
        LastError().clear();
        return function();
    } catch (const std::exception& error) {
        SetLastError(error.what());
    } catch (...) {
        SetLastError("unknown exception");
    }
    return onFailure;
}

template <class Pointer>
Pointer Given(Pointer pointer, const char* name) {
    if (pointer == nullptr) {
        throw std::invalid_argument(std::string(name) + " must not be null");
    }
    return pointer;
}

std::string Optional(const char* text) {
    return text != nullptr ? text : "";
}

char* Copied(const std::string& text) {
    auto* const copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (copy == nullptr) {
        throw std::bad_alloc();
    }
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return copy;
}

std::string Shown(lmc_missing missing, const host::TextProblem& problem) {
    SetLastError(problem.message);
    switch (missing) {
        case LMC_MISSING_KEY:
            return host::ShowKey(problem);
        case LMC_MISSING_MARKED_KEY:
            return host::ShowMarkedKey(problem);
        case LMC_MISSING_NULL:
            break;
    }
    throw host::TextError(problem);
}

}  // namespace

const char* lmc_last_error() {
    return LastError().c_str();
}

lmc_tree* lmc_open(const char* root, const char* alternative, const char* module,
                   lmc_missing missing) {
    return Guarded<lmc_tree*>(nullptr, [&] {
        host::TreeSettings settings;
        settings.alternative = Optional(alternative);
        settings.module = module != nullptr ? module : settings.module;
        if (missing < LMC_MISSING_KEY || missing > LMC_MISSING_NULL) {
            throw std::invalid_argument("missing is none of lmc_missing");
        }
        settings.report = [](std::uint32_t /*level*/, std::string_view report) {
            SetLastError(report);
        };
        settings.whenMissing = [missing](const host::TextProblem& problem) {
            return Shown(missing, problem);
        };
        return new lmc_tree{host::Tree(Given(root, "root"), std::move(settings))};
    });
}

void lmc_close(lmc_tree* tree) {
    delete tree;
}

lmc_texts* lmc_open_texts(const lmc_tree* tree, const char* scope, const char* const* cultures,
                          size_t count) {
    return Guarded<lmc_texts*>(nullptr, [&] {
        std::vector<std::string> names;
        for (size_t i = 0; i < count; ++i) {
            names.emplace_back(Given(Given(cultures, "cultures")[i], "a culture"));
        }
        return new lmc_texts{Given(tree, "tree")->tree.Open(Given(scope, "scope"), names)};
    });
}

void lmc_close_texts(lmc_texts* texts) {
    delete texts;
}

char* lmc_user_cultures(const lmc_tree* tree, const char* standard) {
    return Guarded<char*>(nullptr, [&] {
        const host::CultureChoice choice(Given(tree, "tree")->tree.Cultures(),
                                         Given(standard, "standard"));
        std::string names;
        for (const std::string& name : choice.ForUser()) {
            names.append(names.empty() ? "" : " ").append(name);
        }
        return Copied(names);
    });
}

char* lmc_text(const lmc_texts* texts, const char* key, const char* variant,
               const char* const* names, const char* const* values, size_t count) {
    return Guarded<char*>(nullptr, [&] {
        std::vector<host::Param> params;
        params.reserve(count);
        for (size_t i = 0; i < count; ++i) {
            params.emplace_back(Given(Given(names, "names")[i], "a name"),
                                Given(Given(values, "values")[i], "a value"));
        }
        return Copied(
            Given(texts, "texts")->texts.Variant(Given(key, "key"), Optional(variant), params));
    });
}

int lmc_has(const lmc_texts* texts, const char* key) {
    return Guarded(-1, [&] { return Given(texts, "texts")->texts.Has(Given(key, "key")) ? 1 : 0; });
}

char* lmc_path(const lmc_texts* texts, const char* file) {
    return Guarded<char*>(nullptr, [&]() -> char* {
        const auto path = Given(texts, "texts")->texts.Path(Given(file, "file"));
        return path ? Copied(*path) : nullptr;
    });
}

char* lmc_state(const lmc_texts* texts) {
    return Guarded<char*>(nullptr, [&]() -> char* {
        const host::TextsState state = Given(texts, "texts")->texts.State();
        return state.isUsable ? nullptr : Copied(state.report);
    });
}

int lmc_refresh(const lmc_tree* tree) {
    return Guarded(-1, [&] {
        const host::Refreshed refreshed = Given(tree, "tree")->tree.Refresh();
        if (refreshed.outcome == host::Refreshed::Outcome::Kept) {
            SetLastError(refreshed.mistakes);
            return -1;
        }
        return refreshed.outcome == host::Refreshed::Outcome::Replaced ? 1 : 0;
    });
}

void lmc_free(char* text) {
    std::free(text);
}
