// A photo album that shows its texts: in the user's culture, or in the cultures that it is started with.
// Each line on standard input makes it look for changed files.
//
//     album_cpp TREE [CULTURE...]
#include <iostream>
#include <string>
#include <vector>

#include "localization_manager/host/CultureChoice.h"
#include "localization_manager/host/Tree.h"
#include "localized.h"

namespace host = localization_manager::host;

namespace {

void Show(const localized::MainTexts& texts) {
    std::cout << texts.Window_Title("Rügen") << '\n';
    for (const int photos : {0, 1, 3}) {
        std::cout << texts.Photos_Count(photos) << '\n';
    }
    std::cout << texts.Variant("close").Share_Invite("Rügen", "Ada") << '\n'
              << texts.handle()("Not.Written.Yet") << '\n';  // a key that no compiler knows
}

}  // namespace

int main(int argc, char** argv) try {
    host::TreeSettings settings;
    settings.whenMissing = host::ShowMarkedKey;
    settings.report = host::LinesTo(std::cerr);
    const host::Tree tree(argc > 1 ? argv[1] : ".", settings);

    const host::CultureChoice choice(tree.Cultures(), "en");
    const std::vector<std::string> wanted(argv + (argc > 2 ? 2 : argc), argv + argc);
    const localized::MainTexts texts(tree, wanted.empty() ? choice.ForUser() : choice.For(wanted));
    if (!texts.handle().State().isUsable) {
        return 1;
    }

    Show(texts);
    for (std::string line; std::getline(std::cin, line);) {
        if (tree.Refresh().outcome == host::Refreshed::Outcome::Replaced) {
            Show(texts);
        }
    }
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
