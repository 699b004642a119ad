#pragma once

#include <functional>
#include <string>
#include <vector>

#include "CardStage.h"

namespace vantle {

/// One state of the card that is worth a picture.
struct Scene {
    std::string name;
    std::function<void(CardStage&)> set;
};

/// All of them, in the order in which they are shown.
const std::vector<Scene>& allScenes();

/// The panel as it stands, on nothing.
QImage drawn(CardStage& stage);

}  // namespace vantle
