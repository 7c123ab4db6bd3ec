// What is measured: the module, and the systems that a host would use instead.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

#include "Workload.h"

namespace lm_bench {

/// A started system over one catalogue. Requests may come from several threads at once.
class System {
public:
    System(const System&) = delete;
    System& operator=(const System&) = delete;
    virtual ~System() = default;

    /// Asks for a text and keeps a copy, one per thread, in the type that its callers would use.
    virtual void Answer(const Request& request) = 0;

    /// The calling thread's copy, in UTF-8.
    virtual std::string Kept() const = 0;

    /// What the copy has to be.
    virtual std::string Expected(const Request& request) const { return request.Text(); }

    /// @throws std::runtime_error when the answer is not what was expected.
    void AnswerRightly(const Request& request);

protected:
    System() = default;
};

struct SystemType {
    const char* name;

    /// The file that the system loads.
    std::filesystem::path (*file)(const std::filesystem::path& directory);

    /// Makes that file.
    void (*write)(const std::filesystem::path& directory, const Workload& workload);

    /// Starts the system; what it leaves for the first request is part of starting it.
    std::unique_ptr<System> (*open)(const std::filesystem::path& directory);
};

extern const SystemType kModule;
extern const SystemType kTexts;
extern const SystemType kByHand;
extern const SystemType kGettext;
extern const SystemType kIcu;
extern const SystemType kIcuParsed;
extern const SystemType kBoostLocale;
extern const SystemType kBoostLocaleWide;
extern const SystemType kFloor;

}  // namespace lm_bench
