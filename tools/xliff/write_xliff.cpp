#include "xliff/write_xliff.h"

#include <pugixml.hpp>

#include <sstream>
#include <vector>

#include "exchange/languages.h"
#include "exchange/units.h"
#include "plural/number_ranges.h"
#include "plural/plural_forms.h"
#include "xliff/inline_text.h"
#include "xliff/names.h"

namespace lm_xliff {

using lm_exchange::ScopeTexts;
using lm_exchange::Unit;

namespace {

constexpr std::size_t kIndent = 2;
constexpr const char* kFinal = "final";

/// An element whose children each stand on a line of their own. To leave it to the library would put
/// line breaks into texts that begin with a placeholder.
class Element {
public:
    Element(pugi::xml_node node, std::size_t depth) : node_(node), depth_(depth) {}
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    ~Element() {
        if (node_.first_child()) {
            BreakLine(depth_);
        }
    }

    void Set(const char* name, const std::string& value) {
        node_.append_attribute(name).set_value(value.c_str());
    }

    /// A child to fill; nothing is added to this one meanwhile.
    Element Add(const char* name) {
        BreakLine(depth_ + 1);
        return {node_.append_child(name), depth_ + 1};
    }

    /// A child that holds a text, and no lines.
    pugi::xml_node AddText(const char* name) {
        BreakLine(depth_ + 1);
        return node_.append_child(name);
    }

private:
    void BreakLine(std::size_t depth) {
        const std::string line = '\n' + std::string(depth * kIndent, ' ');
        node_.append_child(pugi::node_pcdata).set_value(line.c_str());
    }

    pugi::xml_node node_;
    std::size_t depth_;
};

class XliffWriter {
public:
    XliffWriter(const ScopeTexts& texts, const lm_exchange::Format& format)
        : texts_(texts), format_(format), formNames_(format.FormNames(texts)) {
        for (std::size_t form = 0; texts.Rule() && form < formNames_.size(); ++form) {
            formNumbers_.push_back(
                "for " + lm_plural::RangesText(lm_plural::NumbersOf(*texts.Rule(), form)));
        }
    }

    std::string Write() {
        pugi::xml_document document;
        {
            Element root(document.append_child("xliff"), 0);
            root.Set("xmlns", kNamespace);
            root.Set("version", kVersion);
            AddFile(root);
        }
        std::ostringstream stream;
        stream << R"(<?xml version="1.0" encoding="UTF-8"?>)" << '\n';
        document.save(stream, "", pugi::format_raw | pugi::format_no_declaration,
                      pugi::encoding_utf8);
        stream << '\n';
        return stream.str();
    }

private:
    void AddFile(Element& root) {
        Element file = root.Add("file");
        file.Set("original", texts_.ReferencePath());
        file.Set("source-language", lm_exchange::LanguageTag(texts_.Reference()));
        if (texts_.Culture()) {
            file.Set("target-language", lm_exchange::LanguageTag(*texts_.Culture()));
        }
        file.Set("datatype", "plaintext");
        file.Set("xml:space", "preserve");
        if (texts_.Rule()) {
            Element header = file.Add("header");
            pugi::xml_node note = header.AddText("note");
            note.append_attribute("from").set_value(kPluralForms);
            note.text().set(lm_plural::PluralFormsOf(*texts_.Rule()).c_str());
        }
        Element body = file.Add("body");
        for (const ScopeTexts::Text& text : texts_.Texts()) {
            if (lm_exchange::CanHold(format_, text)) {
                for (const Unit& unit : text.exchange.Units()) {
                    Add(body, text, unit);
                }
            }
        }
    }

    void Add(Element& body, const ScopeTexts::Text& text, const Unit& unit) {
        const std::string id = UnitId(texts_, text, unit);
        const std::vector<std::string> sources = format_.SourcesOf(unit, texts_);
        const std::vector<std::string> targets = TargetsOf(texts_, unit);
        std::vector<std::string> notes = NotesOf(text, unit);
        if (!unit.isPlural) {
            AddUnit(body, {id, text.key, sources.front(), targets.front(), notes}, text, unit);
            return;
        }
        Element group = body.Add("group");
        group.Set("id", id);
        group.Set("restype", "x-plural");
        group.Set("resname", text.key);
        for (std::size_t form = 0; form < sources.size(); ++form) {
            std::vector<std::string> formNotes = notes;
            if (form < formNumbers_.size()) {
                formNotes.push_back(formNumbers_[form]);
            }
            const std::string suffix = '[' + formNames_[form] + ']';
            AddUnit(group,
                    {id + suffix, text.key + suffix, sources[form], targets[form], formNotes}, text,
                    unit);
        }
    }

    struct TransUnit {
        std::string id;
        std::string name;
        std::string source;
        std::string target;
        std::vector<std::string> notes;
    };

    void AddUnit(Element& parent, const TransUnit& what, const ScopeTexts::Text& text,
                 const Unit& unit) {
        Element element = parent.Add("trans-unit");
        element.Set("id", what.id);
        element.Set("resname", what.name);
        const std::string state = StateOf(text, unit);
        if (state == kFinal) {
            element.Set("approved", "yes");
        }
        AppendInline(element.AddText("source"), what.source);
        if (texts_.Culture()) {
            pugi::xml_node target = element.AddText("target");
            target.append_attribute("state").set_value(state.c_str());
            AppendInline(target, what.target);
        }
        for (const std::string& note : what.notes) {
            element.AddText("note").text().set(Holdable(note).c_str());
        }
    }

    static const char* StateOf(const ScopeTexts::Text& text, const Unit& unit) {
        if (IsOpen(text, unit)) {
            return kNeedsTranslation;
        }
        return text.progress == ScopeTexts::Progress::Accepted ? kFinal : "translated";
    }

    const ScopeTexts& texts_;
    const lm_exchange::Format& format_;
    const std::vector<std::string> formNames_;
    std::vector<std::string> formNumbers_;  // what a translator is told of each form
};

}  // namespace

std::string WriteXliff(const ScopeTexts& texts, const lm_exchange::Format& format) {
    return XliffWriter(texts, format).Write();
}

}  // namespace lm_xliff
