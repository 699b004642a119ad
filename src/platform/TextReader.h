#pragma once

#include <functional>
#include <memory>
#include <string>

#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// Recognizes the text in pictures. Main thread only.
class TextReader {
public:
    /// A picture that is being read. Destroying it stops that at once; no callback comes any more.
    class Reading {
    public:
        virtual ~Reading() = default;
    };

    struct Callbacks {
        /// Gets how much is done, from 0 to 1, never less than before. May be empty.
        std::function<void(double fraction)> onProgress;
        /// Gets the text in UTF-8, with its lines, at the end. It is empty if the picture has no
        /// text. The message of a failure is for the user. May destroy the Reading.
        std::function<void(const Result<std::string>& text)> onDone;
    };

    virtual ~TextReader() = default;

    /// Returns true if text can be recognized on this system: the program for it is installed, and
    /// the data of at least one language that the user reads. Quick enough for each menu that
    /// opens.
    virtual bool isAvailable() const = 0;

    /// Reads one page (from 0) of a file, on behalf of the user, and returns at once. Calls back
    /// later, never inside this call, for as long as the Reading exists; it must not outlive this
    /// object. Readings do not wait for each other.
    virtual std::unique_ptr<Reading> read(const Url& file, int page, Callbacks callbacks) = 0;
};

}  // namespace vantle
