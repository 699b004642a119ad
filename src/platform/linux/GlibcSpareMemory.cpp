#include "platform/linux/GlibcSpareMemory.h"

#include <malloc.h>

namespace vantle {

void GlibcSpareMemory::giveBack() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

}  // namespace vantle
