#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "samplers/process_sampler.h"

namespace vantrix {

/// The desktop entries of applications: what the desktop calls them, and their icons.
class ApplicationEntries {
  public:
    /// `folders`: where the entries lie, the first before the others. `languages`: those that names are wanted in, as
    /// in "de_DE", "de", the first before the others.
    ApplicationEntries(std::vector<std::string> folders, std::vector<std::string> languages)
        : folders_(std::move(folders)), languages_(std::move(languages)) {}

    /// The entry of that name, which may hold anything; absent where there is none of an application.
    std::optional<ProcessSampler::Application> find(std::string_view name) const;

  private:
    std::vector<std::string> folders_;
    std::vector<std::string> languages_;
};

/// The folders of this user's entries: those of XDG_DATA_HOME and XDG_DATA_DIRS.
std::vector<std::string> applicationFolders();

/// The languages that this user wants, by LANGUAGE, or LC_ALL, LC_MESSAGES and LANG.
std::vector<std::string> wantedLanguages();

/// A name of a program, which may hold anything, on one line, without what steers a terminal, and not endless. Never
/// empty.
std::string plainName(std::string_view name);

} // namespace vantrix
