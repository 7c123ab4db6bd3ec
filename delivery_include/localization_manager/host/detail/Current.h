// A value that is replaced as a whole while others read it.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <utility>

namespace localization_manager::host::detail {

/// Readers never wait: entering and leaving are one addition each. A value that was replaced lives until
/// its last reader has left, and goes on that reader's thread.
///
/// The word that readers enter by holds the place of the present value and how many have entered since it
/// came. Who leaves counts down at the place itself, below zero as long as the value is the present one.
/// Replacing adds the number of those who had entered, so that the place reaches zero with the last of them.
template <class Value>
class Current {
    struct Place;

public:
    /// A reader's hold on the value that was present when it entered.
    class Lease {
    public:
        explicit Lease(Current& from) noexcept
            : place_(from.PlaceOf(from.word_.fetch_add(1, std::memory_order_acquire))) {}
        Lease(const Lease&) = delete;
        Lease& operator=(const Lease&) = delete;
        ~Lease() { place_.Add(-1); }

        const Value& operator*() const noexcept { return *place_.value; }
        const Value* operator->() const noexcept { return place_.value.get(); }

    private:
        Place& place_;
    };

    /// @param first  not null.
    explicit Current(std::unique_ptr<const Value> first) {
        places_[0].value = std::move(first);
        places_[0].isTaken = true;
    }
    Current(const Current&) = delete;
    Current& operator=(const Current&) = delete;

    /// Nobody reads any more.
    ~Current() = default;

    /// One thread at a time.
    /// @param next  not null.
    /// @throws std::runtime_error when so many older values are still read that there is no place.
    void Replace(std::unique_ptr<const Value> next) {
        std::size_t index = 0;
        while (places_[index].isTaken.load(std::memory_order_acquire)) {
            if (++index == places_.size()) {
                throw std::runtime_error("too many older states are still being read");
            }
        }
        places_[index].value = std::move(next);
        places_[index].isTaken = true;
        const std::uint64_t before =
            word_.exchange(std::uint64_t{index} << kPlaceShift, std::memory_order_acq_rel);
        constexpr std::uint64_t kEntered = (std::uint64_t{1} << kPlaceShift) - 1;
        PlaceOf(before).Add(static_cast<std::int64_t>(before & kEntered));
    }

private:
    static constexpr unsigned kPlaceShift = 56;  // what is left counts for centuries
    static constexpr std::size_t kPlaces = 256;

    struct Place {
        std::unique_ptr<const Value> value;
        std::atomic<std::int64_t> readers{0};
        std::atomic<bool> isTaken{false};

        /// Nobody can enter any more when it comes to zero: until the value is replaced, each reader that
        /// leaves takes it further below.
        void Add(std::int64_t count) noexcept {
            if (readers.fetch_add(count, std::memory_order_acq_rel) + count == 0) {
                value.reset();
                isTaken.store(false, std::memory_order_release);
            }
        }
    };

    Place& PlaceOf(std::uint64_t word) noexcept {
        return places_[static_cast<std::size_t>(word >> kPlaceShift)];
    }

    std::atomic<std::uint64_t> word_{0};
    std::array<Place, kPlaces> places_;
};

}  // namespace localization_manager::host::detail
