#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/Image.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// A program that can open certain files.
struct OpeningProgram {
    std::string identifier;  ///< Its name for OpenWith::open().
    std::string name;        ///< In the user's language.
    ImagePointer icon;       ///< As large as OpenWith::iconSize; null if the desktop has none.
    bool isDefault = false;  ///< True if the desktop opens these files with it.
};

/// The ways to open certain files.
struct OpeningPrograms {
    std::vector<OpeningProgram> programs;
    /// True if the desktop can show all of its programs to choose from: OpenWith::openWithOther().
    bool offersChooser = false;
};

/// Opens files with a program that the user chooses. Main thread only.
class OpenWith {
public:
    using Found = std::function<void(OpeningPrograms)>;
    using Completion = std::function<void(const Outcome&)>;

    static constexpr double iconSize = 20;  ///< Points.

    virtual ~OpenWith() = default;

    /// Finds the programs that can open all of these files: the default first, then the others in
    /// the desktop's order. This program is not among them. Calls `found` once, on the main thread
    /// and never inside this call, within a few seconds. A failure is logged; `found` then gets
    /// no programs.
    virtual void find(const std::vector<Url>& files, Found found) = 0;

    /// Opens the files with a program that find() has returned. Calls `completion` once, on the
    /// main thread and never inside this call, when the program has started or has failed to.
    virtual void open(const std::vector<Url>& files, const std::string& identifier,
                      Completion completion) = 0;

    /// Lets the user choose a program in a dialog of the desktop and opens the file with it. Calls
    /// `completion` like open(), when the user has answered. If the user chose nothing, it fails
    /// with the kind std::errc::operation_canceled. A second dialog is not opened while one is
    /// open; it counts as one in which the user chose nothing.
    virtual void openWithOther(const Url& file, Completion completion) = 0;
};

}  // namespace vantle
