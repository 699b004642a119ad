#pragma once

namespace vantle {

/// Whether the display server or the compositor that the program is shown by has gone. False while
/// there is none yet.
bool isDisplayLost();

}  // namespace vantle
