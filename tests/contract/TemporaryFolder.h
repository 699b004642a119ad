#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

#include "support/Url.h"

namespace vantle {

/// A temporary folder, which is removed with this object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string path = std::filesystem::temp_directory_path() / "vantle-XXXXXX";
        if (!mkdtemp(path.data())) throw std::runtime_error("cannot make " + path);
        url_ = Url::file(path);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(url_.path(), ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const Url& url() const { return url_; }
    Url operator/(std::string_view name) const { return url_.appending(name); }

private:
    Url url_;
};

}  // namespace vantle
