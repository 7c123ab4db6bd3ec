// A whole host: greets a user in German with texts of the tree that it is started with.
#include <iostream>

#include "localization_manager/host/Texts.h"

int main(int argc, char** argv) try {
    const localization_manager::host::Texts texts(argc > 1 ? argv[1] : ".", "main", "de");
    std::cout << texts("Greeting", {{"userName", "Ada"}}) << '\n';
    for (const int count : {1, 3}) {
        std::cout << texts("Files.Selected", {{"count", count}}) << '\n';
    }
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
