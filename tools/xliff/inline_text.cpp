#include "xliff/inline_text.h"

#include <array>
#include <map>

namespace lm_xliff {

namespace {

constexpr std::string_view kCharacterId = "U+";

/// Characters that no XML file may hold, not even by number, and the one that its readers take for
/// part of a line break.
constexpr std::string_view kControls(
    "\0\1\2\3\4\5\6\a\b\v\f\r\x0e\x0f\x10\x11\x12\x13\x14\x15\x16\x17\x18\x19\x1a\x1b\x1c\x1d\x1e"
    "\x1f",
    30);
constexpr std::array<std::string_view, 2> kNoCharacters = {"\xEF\xBF\xBE", "\xEF\xBF\xBF"};

/// The one at the beginning; empty when XML can hold it.
std::string_view UnholdableAt(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first >= ' ' && first != 0xEF) {
        return {};  // as nearly all can be told
    }
    if (kControls.find(text.front()) != std::string_view::npos) {
        return text.substr(0, 1);
    }
    for (const std::string_view character : kNoCharacters) {
        if (text.substr(0, character.size()) == character) {
            return character;
        }
    }
    return {};
}

std::string IdOf(std::string_view character) {
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string id(kCharacterId);
    if (character.size() == 1) {
        const auto code = static_cast<unsigned char>(character.front());
        return id.append("00").append(1, kHex[code / 16]).append(1, kHex[code % 16]);
    }
    return id.append(character == kNoCharacters.front() ? "FFFE" : "FFFF");
}

/// Adds what a text is made of, one piece after the other.
class InlineWriter {
public:
    explicit InlineWriter(pugi::xml_node element) : element_(element) {}

    void Write(std::string_view rest) {
        while (!rest.empty()) {
            std::size_t used = 1;
            if (const std::string_view character = UnholdableAt(rest); !character.empty()) {
                used = character.size();
                AddPlaceholder(IdOf(character), IdOf(character));
            } else if (rest.substr(0, 2) == "{{" || rest.substr(0, 2) == "}}") {
                used = 2;
                text_ += rest.front();
            } else if (rest.front() == '{') {
                used = rest.find('}') + 1;
                AddPlaceholder(std::string(rest.substr(1, used - 2)),
                               std::string(rest.substr(0, used)));
            } else {
                text_ += rest.front();
            }
            rest.remove_prefix(used);
        }
        AddText();
    }

private:
    void AddText() {
        if (!text_.empty()) {
            element_.append_child(pugi::node_pcdata).set_value(text_.c_str());
            text_.clear();
        }
    }

    void AddPlaceholder(const std::string& name, const std::string& shown) {
        AddText();
        const std::size_t count = ++counts_[name];
        pugi::xml_node placeholder = element_.append_child("x");
        placeholder.append_attribute("id").set_value(
            (count == 1 ? name : name + ':' + std::to_string(count)).c_str());
        placeholder.append_attribute("equiv-text").set_value(shown.c_str());
    }

    pugi::xml_node element_;
    std::string text_;
    std::map<std::string, std::size_t> counts_;
};

/// The character that an id stands for; empty when it is the id of something else.
std::string CharacterOf(std::string_view id) {
    if (id.substr(0, kCharacterId.size()) != kCharacterId) {
        return {};
    }
    for (const char control : kControls) {
        if (id == IdOf({&control, 1})) {
            return {control};
        }
    }
    for (const std::string_view character : kNoCharacters) {
        if (id == IdOf(character)) {
            return std::string(character);
        }
    }
    return {};
}

std::string NameOf(std::string_view inBraces) {
    return std::string("{").append(inBraces).append("}");
}

void AppendFlat(pugi::xml_node element, std::string& flat) {
    for (const pugi::xml_node child : element.children()) {
        const std::string_view name = child.name();
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
            for (const char unit : std::string_view(child.value())) {
                flat.append(unit == '{' || unit == '}' ? 2 : 1, unit);
            }
        } else if (name == "mrk") {
            AppendFlat(child, flat);
        } else if (name == "x") {
            std::string_view id = child.attribute("id").value();
            id = id.substr(0, id.find(':'));
            const bool isName = !id.empty() && id.find_first_of("{}") == std::string_view::npos;
            const std::string character = CharacterOf(id);
            flat += character.empty() ? NameOf(isName ? id : "<x>") : character;
        } else if (child.type() == pugi::node_element) {
            flat += NameOf("<" + std::string(name) + ">");
        }
    }
}

}  // namespace

void AppendInline(pugi::xml_node element, std::string_view flat) {
    InlineWriter(element).Write(flat);
}

std::string Holdable(std::string_view text) {
    std::string holdable;
    while (!text.empty()) {
        const std::string_view character = UnholdableAt(text);
        const std::size_t used = character.empty() ? 1 : character.size();
        holdable += character.empty() ? text.substr(0, 1) : "?";
        text.remove_prefix(used);
    }
    return holdable;
}

std::string FlatOf(pugi::xml_node element) {
    std::string flat;
    AppendFlat(element, flat);
    return flat;
}

}  // namespace lm_xliff
