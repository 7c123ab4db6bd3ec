// The engine that makes final texts, over the texts as typed.
#pragma once

#include <boost/shared_ptr.hpp>
#include <cstdint>
#include <memory>
#include <string>

#include "lsp/Snapshot.h"

namespace LocalizationManager::StringLocalizing::Pipeline {
class BufferProcessingPipeline;
}

namespace lm_lsp {

/// Answers for a scope in one culture, as the module would if all open texts were saved. Parameters get the
/// sample values of the settings, those that choose forms a number.
class Engine {
public:
    struct Answer {
        bool isText = false;
        std::string text;         // or why there is none
        bool usesNumber = false;  // whether another number may make another text
    };

    /// @param snapshot  must outlive this.
    /// @param culture   one that programs ask for.
    /// @throws std::exception with the reason when the engine cannot use the texts.
    Engine(const Snapshot& snapshot, const lm_tree::CultureName& culture, const std::string& scope);
    ~Engine();

    Answer Ask(const std::string& key, std::uint64_t number);

private:
    class Sources;
    class Params;

    boost::shared_ptr<Params> params_;
    std::unique_ptr<LocalizationManager::StringLocalizing::Pipeline::BufferProcessingPipeline>
        pipeline_;
};

}  // namespace lm_lsp
