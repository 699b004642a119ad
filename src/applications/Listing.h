#pragma once

#include <string>
#include <vector>

namespace vantle::applications {

/// A program of the desktop, as its desktop file describes it.
struct Program {
    std::string identifier;  ///< The name of its desktop file.
    std::string name;        ///< In the user's language.
    /// A name in the icon theme, or an absolute path; empty if it has no icon.
    std::string icon;
    bool isDefault = false;
};

/// Returns the programs that can open all of the files, in the desktop's order: those that the
/// desktop associates with the type of the first file, without those that do not take the other
/// types or that are for another desktop. A program that is the default for all types comes first.
std::vector<Program> programsFor(const std::vector<std::string>& files);

}  // namespace vantle::applications
