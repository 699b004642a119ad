#include "support/Debug.h"

#include <atomic>
#include <cstdlib>

namespace vantle {
namespace {

std::atomic<bool>& state() {
    static std::atomic<bool> on = std::getenv("VANTLE_DEBUG") != nullptr;
    return on;
}

}  // namespace

bool Debug::on() {
    return state();
}

void Debug::set(bool on) {
    state() = on;
}

}  // namespace vantle
