#include "contract/DesktopPasteboard.h"
#include "contract/PasteboardContract.h"

namespace vantle {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(QtPasteboard, PasteboardContract, DesktopPasteboard);

}  // namespace
}  // namespace vantle
