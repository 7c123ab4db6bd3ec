#include "xliff/read_xliff.h"

#include <pugixml.hpp>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string_view>

#include "tree/ascii_case.h"
#include "xliff/inline_text.h"
#include "xliff/names.h"
#include "xliff/require_plain_xml.h"

namespace lm_xliff {

using lm_exchange::TranslatedFile;
using lm_exchange::TranslatedUnit;
using State = TranslatedUnit::State;

namespace {

/// States that are not ours are those of people and their tools.
State StateOf(pugi::xml_node target) {
    const std::string_view state = target.attribute("state").value();
    if (state == kNeedsTranslation) {
        return State::Open;
    }
    return state == "new" || state.substr(0, 6) == "needs-" ? State::Unfinished : State::Done;
}

class XliffReader {
public:
    explicit XliffReader(const std::string& name) : name_(name) {}

    TranslatedFile Read(const std::string& bytes) {
        RequirePlainXml(name_, bytes);
        const pugi::xml_parse_result result = document_.load_buffer(
            bytes.data(), bytes.size(),
            pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_declaration,
            pugi::encoding_utf8);
        if (!result) {
            FailAt(bytes, static_cast<std::size_t>(result.offset), result.description());
        }
        RequireUtf8();
        TakePrefixOut();
        const pugi::xml_node file = FileElement();
        TranslatedFile translated;
        translated.language = file.attribute("target-language").value();
        const pugi::xml_node rule =
            file.child("header").find_child_by_attribute("note", "from", kPluralForms);
        if (rule) {
            translated.pluralForms = rule.child_value();
        }
        ReadUnits(file.child("body"));
        translated.units = std::move(units_);
        return translated;
    }

private:
    [[noreturn]] void Fail(const std::string& what) const {
        throw std::runtime_error("'" + name_ + "' " + what);
    }

    [[noreturn]] void FailAt(const std::string& bytes, std::size_t at, const char* what) const {
        const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(std::min(at, bytes.size()));
        const auto line = 1 + std::count(bytes.begin(), end, '\n');
        std::string message = what;
        message.front() = lm_tree::LowerAscii(message).front();
        throw std::runtime_error(name_ + ':' + std::to_string(line) +
                                 ": is no XML, or not whole: " + message);
    }

    void RequireUtf8() const {
        const std::string encoding = document_.first_child().attribute("encoding").value();
        const bool isUtf8 = encoding.empty() || lm_tree::SameIgnoringCase(encoding, "utf-8") ||
                            lm_tree::SameIgnoringCase(encoding, "us-ascii");
        if (document_.first_child().type() == pugi::node_declaration && !isUtf8) {
            Fail("says that it is '" + encoding + "': save it as UTF-8");
        }
    }

    /// Some tools write all names with a prefix for the namespace.
    void TakePrefixOut() {
        const std::string_view root = document_.document_element().name();
        const std::size_t colon = root.find(':');
        if (colon != std::string_view::npos) {
            TakePrefixOut(document_.root(), std::string(root.substr(0, colon + 1)));
        }
    }

    static void TakePrefixOut(pugi::xml_node parent, const std::string& prefix) {
        for (pugi::xml_node child : parent.children()) {
            const std::string name = child.name();
            if (name.compare(0, prefix.size(), prefix) == 0) {
                child.set_name(name.c_str() + prefix.size());
            }
            TakePrefixOut(child, prefix);
        }
    }

    pugi::xml_node FileElement() const {
        const pugi::xml_node root = document_.child("xliff");
        const std::string version = root.attribute("version").value();
        if (!root || version != kVersion) {
            Fail(root ? "is XLIFF " + (version.empty() ? "without a version" : version) +
                            ": have the tool save XLIFF 1.2"
                      : "is no XLIFF file");
        }
        const pugi::xml_node file = root.child("file");
        if (!file || file.next_sibling("file")) {
            Fail("has not one 'file' element: export and import each scope in a file of its own");
        }
        return file;
    }

    /// Groups may be made by tools, too.
    void ReadUnits(pugi::xml_node parent) {
        for (const pugi::xml_node child : parent.children()) {
            const std::string_view name = child.name();
            if (name == "group") {
                ReadUnits(child);
            } else if (name == "trans-unit") {
                Read(child);
            }
        }
    }

    void Read(pugi::xml_node element) {
        std::string id = element.attribute("id").value();
        const std::size_t bracket = id.rfind('[');
        std::string form;
        if (bracket != std::string::npos && id.back() == ']') {
            form = id.substr(bracket + 1, id.size() - bracket - 2);
            id.resize(bracket);
        }
        TranslatedUnit& unit = UnitFor(id, form);
        unit.sources.push_back(FlatOf(element.child("source")));
        unit.targets.push_back(FlatOf(element.child("target")));
        // One form that is not ready holds up all.
        unit.state = std::max(unit.state, StateOf(element.child("target")));
    }

    /// The one that a form belongs to, or a new one.
    TranslatedUnit& UnitFor(const std::string& id, const std::string& form) {
        const auto known = plurals_.find(id);
        if (!form.empty() && known != plurals_.end()) {
            TranslatedUnit& unit = units_[known->second];
            unit.formNames.push_back(form);
            return unit;
        }
        TranslatedUnit unit;
        unit.id = id;
        if (!form.empty()) {
            unit.formNames.push_back(form);
            plurals_.emplace(id, units_.size());
        }
        units_.push_back(std::move(unit));
        return units_.back();
    }

    const std::string& name_;
    pugi::xml_document document_;
    std::vector<TranslatedUnit> units_;
    std::map<std::string, std::size_t> plurals_;  // units, by id
};

}  // namespace

TranslatedFile ReadXliff(const std::string& name, const std::string& bytes) {
    return XliffReader(name).Read(bytes);
}

}  // namespace lm_xliff
