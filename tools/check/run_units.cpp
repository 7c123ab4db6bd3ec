#include "check/run_units.h"

#include <algorithm>
#include <condition_variable>
#include <cstdint>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

#include "check/judge_unit.h"

namespace lm_check {

namespace {

/// The sizes of all files of the largest culture.
std::uintmax_t LargestCulture(const Plan& plan, const std::vector<Unit>& units) {
    std::map<std::string, std::uintmax_t> sizes;
    std::uintmax_t largest = 0;
    for (const Unit& unit : units) {
        const lm_tree::TreeFile& file = plan.tree.Files()[unit.file];
        std::uintmax_t& size = sizes[file.directory];
        size += file.size;
        largest = std::max(largest, size);
    }
    return largest;
}

/// Hands out files in their order and puts what they came to together in the same order.
class Runner {
public:
    Runner(const Plan& plan, const Reference& reference, const TranslationLock& lock,
           const std::vector<Unit>& units)
        : plan_(plan),
          reference_(reference),
          lock_(lock),
          units_(units),
          commonFiles_(plan.tree),
          room_(LargestCulture(plan, units)),
          results_(units.size()),
          all_{Collector(plan.options), {}, {}} {}

    UnitResult Run() {
        std::size_t count = plan_.options.threads;
        if (count == 0) {
            count = std::max(1U, std::thread::hardware_concurrency());
        }
        count = std::min(count, std::max<std::size_t>(units_.size(), 1));
        std::vector<std::thread> threads;
        try {
            for (std::size_t i = 1; i < count; ++i) {
                threads.emplace_back([this] { Work(); });
            }
        } catch (const std::system_error&) {
            // With fewer threads it takes longer.
        }
        Work();
        for (std::thread& thread : threads) {
            thread.join();
        }
        if (failure_) {
            std::rethrow_exception(failure_);
        }
        return std::move(all_);
    }

private:
    void Work() {
        while (const auto number = Begin()) {
            try {
                UnitResult result =
                    JudgeUnit(plan_, reference_, lock_, commonFiles_, units_[*number]);
                End(*number, std::move(result));
            } catch (...) {
                Fail(std::current_exception());
            }
        }
    }

    std::uintmax_t SizeOf(std::size_t number) const {
        return plan_.tree.Files()[units_[number].file].size;
    }

    std::optional<std::size_t> Begin() {
        std::unique_lock<std::mutex> guard(mutex_);
        const auto mayGo = [this] {
            return failure_ || next_ == units_.size() || running_ == 0 ||
                   inUse_ + SizeOf(next_) <= room_;
        };
        changed_.wait(guard, mayGo);
        if (failure_ || next_ == units_.size()) {
            return std::nullopt;
        }
        ++running_;
        inUse_ += SizeOf(next_);
        return next_++;
    }

    void End(std::size_t number, UnitResult result) {
        const std::lock_guard<std::mutex> guard(mutex_);
        results_[number].emplace(std::move(result));
        --running_;
        inUse_ -= SizeOf(number);
        while (taken_ < results_.size() && results_[taken_]) {
            Take(std::move(*results_[taken_]));
            results_[taken_].reset();
            ++taken_;
        }
        if (plan_.options.progress) {
            plan_.options.progress(++done_, units_.size());
        }
        changed_.notify_all();
    }

    void Take(UnitResult&& result) {
        all_.findings.Merge(std::move(result.findings));
        all_.suppressions.Merge(std::move(result.suppressions));
        all_.plurals.insert(all_.plurals.end(), result.plurals.begin(), result.plurals.end());
    }

    void Fail(std::exception_ptr failure) {
        const std::lock_guard<std::mutex> guard(mutex_);
        failure_ = std::move(failure);
        changed_.notify_all();
    }

    const Plan& plan_;
    const Reference& reference_;
    const TranslationLock& lock_;
    const std::vector<Unit>& units_;
    CommonFiles commonFiles_;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t next_ = 0;
    std::size_t running_ = 0;
    std::uintmax_t room_;
    std::uintmax_t inUse_ = 0;
    std::size_t done_ = 0;
    std::size_t taken_ = 0;
    std::vector<std::optional<UnitResult>> results_;
    UnitResult all_;
    std::exception_ptr failure_;
};

}  // namespace

UnitResult RunUnits(const Plan& plan, const Reference& reference, const TranslationLock& lock,
                    const std::vector<Unit>& units) {
    return Runner(plan, reference, lock, units).Run();
}

}  // namespace lm_check
