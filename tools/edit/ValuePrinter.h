// Lays out the value of an entry.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "source/Document.h"

namespace lm_edit {

/// Columns count characters from 0.
class ValuePrinter {
public:
    ValuePrinter(const lm_source::Document& document, std::string_view lineBreak)
        : document_(document), lineBreak_(lineBreak) {}

    /// @param column      where the value begins.
    /// @param plusColumn  where a "+" that begins a line stands.
    std::string Print(lm_source::Value value, std::size_t column, std::size_t plusColumn) const;

private:
    std::string Flat(lm_source::Value value) const;
    std::string Flat(const lm_source::Operand& operand) const;
    std::string Head(const lm_source::Operand& pluralForm) const;
    std::string Forms(const lm_source::Operand& pluralForm, std::size_t column) const;

    const lm_source::Document& document_;
    std::string_view lineBreak_;
};

}  // namespace lm_edit
