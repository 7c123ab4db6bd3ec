// How people of a culture write numbers and dates.
#pragma once

#include "localization_manager/host/DerivedParam.h"
#include "qor/basic_string_t.h"

namespace localization_manager::host {

/// Writes values for the texts of one culture. The kit knows no culture's conventions itself; `UseIcu` takes
/// them from ICU. Several threads use one object at once.
class Conventions {
public:
    Conventions() = default;
    Conventions(const Conventions&) = delete;
    Conventions& operator=(const Conventions&) = delete;
    virtual ~Conventions() = default;

    /// Answers a derived name, such as "count.number".
    /// @param format  what the name asks for.
    /// @param value   as `Param::Write` gives it; replaced by what people read.
    /// @throws std::exception that says what is wrong with the value; the text cannot be made then, and the
    ///         message has what it says behind the name.
    virtual void Write(ValueFormat format, qor::string16_t& value) const = 0;

    /// May put marks around a value that runs in another direction than the texts of the culture.
    /// @param value  a text that is inserted as it is, never a number.
    virtual void Isolate(qor::string16_t& value) const = 0;
};

}  // namespace localization_manager::host
