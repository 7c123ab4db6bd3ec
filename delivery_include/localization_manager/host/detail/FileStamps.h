// Whether the files of a tree are what they were.
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <system_error>

#include "localization_manager/host/detail/Selection.h"
#include "localization_manager/host/text.h"
#include "localization_manager/tree_layout.h"

namespace localization_manager::host::detail {

/// Remembers time, size and permissions of every file that could answer for a selection, and that it is
/// not there: a file may come to hide another one.
class FileStamps {
public:
    /// @param root, alternative  UTF-8; the alternative tree may be empty.
    FileStamps(std::string_view root, std::string_view alternative)
        : root_(root), alternative_(alternative) {}

    /// Looks at the files of a selection; those that are remembered already stay as they are.
    void Add(const Selection& selection) {
        for (std::size_t i = 0; i < selection.cultures.size(); ++i) {
            AddCulture(ToUtf16(selection.scope), ToUtf16(selection.isoNames[i]),
                       selection.cultures[i]);
        }
    }

    /// The same files as they are now.
    FileStamps Now() const {
        FileStamps now(root_, alternative_);
        for (const auto& file : stamps_) {
            now.AddFile(file.first);
        }
        return now;
    }

    friend bool operator==(const FileStamps& left, const FileStamps& right) {
        return left.stamps_ == right.stamps_;
    }

private:
    struct Stamp {
        std::filesystem::file_time_type time;
        std::uintmax_t size = 0;
        std::filesystem::perms permissions{};
        std::filesystem::file_type type{};

        friend bool operator==(const Stamp& left, const Stamp& right) {
            return left.time == right.time && left.size == right.size &&
                   left.permissions == right.permissions && left.type == right.type;
        }
    };

    void AddCulture(const std::u16string& scope, const std::u16string& iso,
                    const Culture& culture) {
        using namespace tree_layout;
        const std::u16string region = ToUtf16(culture.region.view());
        const auto directories = CultureDirectories(iso, region, ToUtf16(culture.variant.view()));
        for (const std::string& tree : {alternative_, root_}) {
            for (const std::u16string& directory : directories) {
                for (const std::u16string& source : {scope, std::u16string(kCommonScope)}) {
                    if (!tree.empty()) {
                        AddFile(ToUtf16(tree)
                                    .append(u"/")
                                    .append(directory)
                                    .append(u"/")
                                    .append(kTextsDirectory)
                                    .append(u"/")
                                    .append(source)
                                    .append(kTextsExtension));
                    }
                }
            }
        }
        for (const auto& below : PluralRuleDirectories(iso, region)) {
            std::u16string path = ToUtf16(root_).append(u"/");
            for (const std::u16string& directory : below) {
                path.append(directory).append(u"/");
            }
            AddFile(path.append(kPluralRuleFile));
        }
    }

    void AddFile(std::u16string path) {
        // The module takes separators written in either way, everywhere.
        std::replace(path.begin(), path.end(), u'\\', u'/');
        const auto [file, isNew] = stamps_.try_emplace(std::move(path));
        if (isNew) {
            file->second = Look(std::filesystem::path(file->first));
        }
    }

    static Stamp Look(const std::filesystem::path& path) {
        std::error_code
            ignored;  // what cannot be asked for stays zero, and is compared like the rest
        const std::filesystem::file_status status = std::filesystem::status(path, ignored);
        Stamp stamp;
        stamp.type = status.type();
        stamp.permissions = status.permissions();
        if (std::filesystem::is_regular_file(status)) {
            stamp.time = std::filesystem::last_write_time(path, ignored);
            stamp.size = std::filesystem::file_size(path, ignored);
        }
        return stamp;
    }

    std::string root_;
    std::string alternative_;
    std::map<std::u16string, Stamp> stamps_;
};

}  // namespace localization_manager::host::detail
