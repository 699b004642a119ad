#pragma once

#include <memory>

#include "panel/CaptureActions.h"
#include "panel/CapturePanelController.h"
#include "panel/CardActions.h"
#include "panel/Selection.h"
#include "panel/TextCopy.h"
#include "platform/FileOpener.h"

namespace vantle {

/// Makes the callbacks through which the card reaches the controller and these of its parts. Each
/// callback holds the controller weakly. `opener` must outlive the callbacks.
CardActions makeCardActions(const std::shared_ptr<CapturePanelController>& controller,
                            CaptureActions& captures, TextCopy& texts, Selection& selection,
                            Renaming& renaming, FileOpener& opener);

}  // namespace vantle
