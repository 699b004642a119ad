#pragma once

#include <gio/gio.h>

#include <cstdlib>
#include <memory>

namespace vantle::applications {

struct ObjectDeleter {
    template <typename Object>
    void operator()(Object* object) const {
        g_object_unref(object);
    }
};

/// Owns one reference to an object of GLib.
template <typename Object>
using Owned = std::unique_ptr<Object, ObjectDeleter>;

struct MemoryDeleter {
    void operator()(char* text) const { g_free(text); }
};

/// Owns a text that GLib has allocated.
using OwnedText = std::unique_ptr<char, MemoryDeleter>;

struct ErrorDeleter {
    void operator()(GError* error) const { g_error_free(error); }
};
using OwnedError = std::unique_ptr<GError, ErrorDeleter>;

}  // namespace vantle::applications
