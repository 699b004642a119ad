#pragma once

#include <string>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// Hands files, and pages of the web, to other programs. Nothing waits for those, and what they
/// make of a file that has gone is theirs; that nobody could be asked at all is logged. Main thread
/// only.
class FileOpener {
public:
    virtual ~FileOpener() = default;

    /// Opens the file with its default application.
    virtual void open(const Url& url) = 0;

    /// Shows the files selected in the file manager.
    virtual void reveal(const std::vector<Url>& urls) = 0;

    /// Opens a page of the web in the user's browser.
    virtual void openPage(const std::string& address) = 0;
};

}  // namespace vantle
