#pragma once

namespace vantle {

/// Returns true if the dynamic linker would find this library in one of its usual folders or in
/// those of $LD_LIBRARY_PATH. Does not load it.
bool isLibraryInstalled(const char* name);

}  // namespace vantle
