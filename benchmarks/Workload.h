// The messages that every measured system serves, and what is asked of them.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "qor/basic_string_t.h"

namespace lm_bench {

enum class Kind { Plain, Parameter, Plural };

/// A text with a gap for the parameter or the number. A plain text is `before` alone.
struct Pattern {
    std::string before;
    std::string after;
};

struct Message {
    Kind kind;
    std::string key;
    std::vector<Pattern> forms;  // of a plural three, else one
};

/// A message with what fills its gap. All that a system takes is here, in the types that it takes,
/// so that requests in turn read memory in turn: only the systems have to search.
struct Request {
    Kind kind;
    std::string key;
    qor::string16_t key16;
    int number;             // of a plural
    std::string parameter;  // of any other
    std::u16string parameter16;
    const Message* message;

    /// Brings the texts near, as they are with a host that is about to ask: only the systems search.
    void Prefetch() const {
        PrefetchAll(key.data(), key.size());
        PrefetchAll(key16.data(), key16.size());
        PrefetchAll(parameter.data(), parameter.size());
        PrefetchAll(parameter16.data(), parameter16.size());
    }

    const Pattern& Form() const;

    /// The text that has to come out.
    std::string Text() const;

private:
    template <class Char>
    static void PrefetchAll(const Char* text, std::size_t size) {
        __builtin_prefetch(text);
        __builtin_prefetch(text + size);  // none is longer than two lines of the cache
    }
};

/// The order of requests.
enum class Order {
    EachOnce,  // in random order, each before any comes again
    Repeated,  // 16,384 that are drawn at random, so that some come often, some never
};

/// Equal sizes make equal workloads, on every machine. A third of the messages is of each kind.
class Workload {
public:
    explicit Workload(std::size_t size);
    Workload(const Workload&) = delete;
    Workload& operator=(const Workload&) = delete;

    std::size_t Size() const { return messages_.size(); }
    const std::vector<Message>& Messages() const { return messages_; }

    /// Requests for the messages of a kind.
    const std::vector<Request>& Of(Kind kind, Order order) const {
        return requests_[static_cast<std::size_t>(order)][static_cast<std::size_t>(kind)];
    }

    /// Every message once, in random order.
    const std::vector<Request>& All() const { return all_; }

private:
    std::string Sentence(std::size_t words);
    std::string Key(std::size_t index);
    Message MakeMessage(std::size_t index);
    Request Ask(const Message& message);
    void AskEachOnce();
    void AskRepeatedly();

    std::mt19937 random_;
    std::vector<Message> messages_;
    std::vector<Request> all_;
    std::array<std::array<std::vector<Request>, 3>, 2> requests_;
};

/// Writes a file, and the directories above it.
void WriteFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace lm_bench
