// What no system can go below: a hash of the key, one probe of a table, one copy. It knows neither
// files, letter case, parameters nor forms; of a message it gives the first form without a gap.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "System.h"
#include "localization_manager/host/text.h"

namespace lm_bench {

namespace {

namespace host = localization_manager::host;

thread_local qor::string16_t kept;

/// Of the key's bytes, eight at a time.
std::uint64_t HashOf(std::u16string_view key) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    const auto* bytes = reinterpret_cast<const char*>(key.data());
    std::size_t left = key.size() * sizeof(char16_t);
    std::uint64_t hash = left;
    for (std::uint64_t word = 0; left != 0; word = 0) {
        const std::size_t taken = std::min(left, sizeof word);
        std::memcpy(&word, bytes, taken);
        hash = (hash ^ word) * kFactor;
        hash ^= hash >> 32U;
        bytes += taken;
        left -= taken;
    }
    return hash;
}

std::filesystem::path File(const std::filesystem::path& directory) {
    return directory / "floor.txt";
}

std::string Text(const Message& message) {
    return message.forms[0].before + message.forms[0].after;
}

/// A line with the key and one with the text, for each message.
void Write(const std::filesystem::path& directory, const Workload& workload) {
    std::string lines;
    for (const Message& message : workload.Messages()) {
        lines += message.key + '\n' + Text(message) + '\n';
    }
    WriteFile(File(directory), lines);
}

class Floor : public System {
public:
    explicit Floor(const std::filesystem::path& directory) {
        std::vector<std::u16string> lines;
        std::ifstream file(File(directory));
        for (std::string line; std::getline(file, line);) {
            lines.push_back(host::ToUtf16(line));
        }
        std::size_t size = 1;
        while (size < lines.size()) {
            size *= 2;  // at most one slot in two is taken
        }
        slots_.resize(size);
        for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
            SlotOf(lines[i]) = {static_cast<std::uint32_t>(texts_.size()),
                                static_cast<std::uint32_t>(lines[i].size()),
                                static_cast<std::uint32_t>(lines[i + 1].size())};
            texts_.append(lines[i]).append(lines[i + 1]);
        }
    }

    void Answer(const Request& request) override {
        const Slot& slot = SlotOf(request.key16.view());
        kept = std::u16string_view(texts_).substr(slot.position + slot.keySize, slot.textSize);
    }

    std::string Kept() const override { return host::ToUtf8(kept); }
    std::string Expected(const Request& request) const override { return Text(*request.message); }

private:
    struct Slot {
        std::uint32_t position = 0;
        std::uint32_t keySize = 0;  // nothing but a free slot has none
        std::uint32_t textSize = 0;
    };

    /// Of the key, or free.
    Slot& SlotOf(std::u16string_view key) {
        std::size_t place = HashOf(key);
        while (true) {
            Slot& slot = slots_[place++ & (slots_.size() - 1)];
            if (slot.keySize == 0 ||
                (slot.keySize == key.size() &&
                 std::memcmp(&texts_[slot.position], key.data(), 2 * key.size()) == 0)) {
                return slot;
            }
        }
    }

    std::vector<Slot> slots_;
    std::u16string texts_;
};

std::unique_ptr<System> Open(const std::filesystem::path& directory) {
    return std::make_unique<Floor>(directory);
}

}  // namespace

const SystemType kFloor{"floor", File, Write, Open};

}  // namespace lm_bench
