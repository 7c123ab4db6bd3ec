// A whole host: greets a user in German with texts of the tree that it is started with.
#include <iostream>

#include "localization_manager/host/host.h"

using namespace localization_manager;

int main(int argc, char** argv) try {
    const host::Module module;
    const auto services = host::Make<host::ServiceLocator>(host::LinesTo(std::cerr));
    const auto manager = module.CreateManager(*services);
    host::Check(manager->Init(host::ToString16(argc > 1 ? argv[1] : "."), u""), "cannot open tree");

    Culture culture;
    host::Check(module.CreateCultureConverter(*services)->GetCultureByIsoName("de", culture), "de");
    const auto params = host::Make<host::ParamMap>();
    params->Set("userName", "Ada");
    qor::objptr_t<ILocalizer> localizer;
    host::Check(manager->CreateLocalizer(u"main", culture, params.get(), localizer.Ref()), "main");

    qor::string16_t text;
    host::Check(localizer->GetString(u"Greeting", text), "Greeting");
    std::cout << host::ToUtf8(text) << '\n';
    for (const int count : {1, 3}) {
        params->Set("count", count);
        host::Check(localizer->GetString(u"Files.Selected", text), "Files.Selected");
        std::cout << host::ToUtf8(text) << '\n';
    }
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
