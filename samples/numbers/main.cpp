// Shows numbers, money and dates of a photo album as people of a culture write them: of the user's culture, or
// of those that it is started with.
//
//     sample_numbers TREE [CULTURE...]
#include <chrono>
#include <iostream>
#include <string>
#include <vector>

#include "localization_manager/host/CultureChoice.h"
#include "localization_manager/host/Tree.h"
#include "localization_manager/host/icu/IcuConventions.h"

namespace host = localization_manager::host;

int main(int argc, char** argv) try {
    host::IcuOptions options;
    options.currency = "EUR";
    options.timeZone = "Europe/Berlin";  // a program for one place; empty is the user's own
    options.isolates = true;             // names in Latin letters stand in Arabic texts, too

    host::TreeSettings settings;
    settings.conventions = host::UseIcu(options);
    settings.report = host::LinesTo(std::cerr);
    const host::Tree tree(argc > 1 ? argv[1] : ".", settings);

    const host::CultureChoice choice(tree.Cultures(), "en");
    const std::vector<std::string> wanted(argv + (argc > 2 ? 2 : argc), argv + argc);
    const host::Texts texts =
        tree.Open("main", wanted.empty() ? choice.ForUser() : choice.For(wanted));

    const auto latest = std::chrono::system_clock::from_time_t(1714602600);
    const int photos = 12345;
    const double used = 0.823;
    std::cout << texts("Album", {{"album", "Rügen (2024)"}, {"latest", latest}}) << '\n'
              << texts("Photos", {{"photos", photos}}) << '\n'
              << texts("Storage", {{"used", used}, {"price", 4.5}, {"until", "2025-12-31"}})
              << '\n';
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
