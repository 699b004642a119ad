#pragma once

#include <functional>
#include <string>
#include <vector>

#include "CardStage.h"

namespace vantle {

/// One state of the card, for a picture.
struct Scene {
    std::string name;
    std::function<void(CardStage&)> set;
};

/// Returns all scenes, in the order in which they are shown.
const std::vector<Scene>& allScenes();

/// Returns the panel as it is, without a background.
QImage drawn(CardStage& stage);

}  // namespace vantle
