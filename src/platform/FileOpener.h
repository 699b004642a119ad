#pragma once

#include <string>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// Hands files and web pages to other programs and does not wait for them. A program that gets a
/// file that is gone deals with that itself. If no program can be asked at all, that is logged.
/// Main thread only.
class FileOpener {
public:
    virtual ~FileOpener() = default;

    /// Opens the file with its default application.
    virtual void open(const Url& url) = 0;

    /// Shows the files selected in the file manager.
    virtual void reveal(const std::vector<Url>& urls) = 0;

    /// Opens a web page in the user's browser.
    virtual void openPage(const std::string& address) = 0;
};

}  // namespace vantle
