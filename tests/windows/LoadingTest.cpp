// What a process keeps of the module: of its loading and unloading, and of threads that come and go.
#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

#include "System.h"
#include "TempTree.h"
#include "localization_manager/c/localization_manager.h"
#include "localization_manager/host/host.h"

namespace {

namespace lm = localization_manager;
namespace host = localization_manager::host;

struct Use {
    std::ptrdiff_t blocks, bytes;
};

/// Memory in use on all heaps of the process.
Use HeapUse() {
    HANDLE heaps[64];
    Use use = {};
    const DWORD count = ::GetProcessHeaps(64, heaps);
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry = {};
        while (::HeapWalk(heaps[i], &entry) != FALSE) {
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
                ++use.blocks;
                use.bytes += static_cast<std::ptrdiff_t>(entry.cbData);
            }
        }
    }
    return use;
}

struct LoadingTest : testing::Test {
    LoadingTest() {
        tree.Write("neutral/Locs/app.lt", "Text = 'a text'"),
            tree.Write("neutral/Locs/common.lt", "");
    }

    qor::objptr_t<lm::ILocalizer> MakeLocalizer(const host::Module& module) const {
        const auto services = host::Make<host::ServiceLocator>(host::Report());
        const auto manager = module.CreateManager(*services);
        EXPECT_EQ(manager->Init(qor::string16_t(tree.Path()), u""), qor::rcOk);
        qor::objptr_t<lm::ILocalizer> localizer;
        EXPECT_EQ(manager->CreateLocalizer(u"app", lm::Culture(), nullptr, localizer.Ref()),
                  qor::rcOk);
        return localizer;
    }

    /// A text, and a failure.
    static void Ask(lm::ILocalizer& localizer) {
        qor::string16_t text;
        EXPECT_EQ(localizer.GetString(u"text", text), qor::rcOk);
        EXPECT_EQ(localizer.GetString(u"none", text), qor::rcUnspecifiedError);
    }

    lm_test::TempTree tree;
};

/// The runtime keeps some 1.5 KiB of its start; what it holds in reserve for exceptions has 70 KiB.
TEST_F(LoadingTest, UnloadingGivesBackAllButALittleOfTheRuntime) {
    const std::wstring name = std::filesystem::path(MODULE).filename().wstring();
    const auto cycle = [&] {
        {
            const host::Module module(MODULE);
            Ask(*MakeLocalizer(module));
        }
        ASSERT_EQ(::GetModuleHandleW(name.c_str()), nullptr) << "it is still loaded";
    };
    for (int i = 0; i < 20; ++i) {
        cycle();
    }
    const Use before = HeapUse();
    for (int i = 0; i < 480 && !HasFailure(); ++i) {
        cycle();
    }
    const Use after = HeapUse();
    EXPECT_LT(after.bytes - before.bytes, 480 * 2048);
}

TEST_F(LoadingTest, ThreadsThatFailLeaveNothing) {
    const host::Module module(MODULE);
    const auto localizer = MakeLocalizer(module);
    const auto run = [&](int threads) {
        for (int i = 0; i < threads; ++i) {
            std::thread([&] { Ask(*localizer); }).join();
        }
    };
    run(100);
    const Use before = HeapUse();
    run(1000);
    const Use after = HeapUse();
    EXPECT_LT(after.blocks - before.blocks, 50);
    EXPECT_LT(after.bytes - before.bytes, 1000 * 16);
}

/// Beside this program there is a module, too. A thread that has called the library keeps it until it ends.
TEST_F(LoadingTest, ALibraryOfTheHostFindsTheModuleBesideItself) {
    const auto place = tree.Root() / "library";
    std::filesystem::create_directory(place);
    std::filesystem::copy_file(LIBRARY, place / "c.dll");
    void* const library = qor::platform::OpenSharedLibrary((place / "c.dll").string());
    std::thread([&] {
        const auto open = reinterpret_cast<decltype(&lmc_open)>(
            qor::platform::FindInSharedLibrary(library, "lmc_open"));
        const auto close = reinterpret_cast<decltype(&lmc_close)>(
            qor::platform::FindInSharedLibrary(library, "lmc_close"));
        const std::string root = tree.Root().string();
        EXPECT_EQ(open(root.c_str(), nullptr, nullptr, LMC_MISSING_KEY), nullptr);
        std::filesystem::copy_file(MODULE, place / "localization_manager.dll");
        lmc_tree* const opened = open(root.c_str(), nullptr, nullptr, LMC_MISSING_KEY);
        EXPECT_NE(opened, nullptr);
        close(opened);
    }).join();
    qor::platform::CloseSharedLibrary(library);
}

}  // namespace
