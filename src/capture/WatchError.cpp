#include "capture/WatchError.h"

#include <iomanip>
#include <sstream>

namespace vantle {

std::string WatchError::text() const {
    switch (kind_) {
        case Kind::accessDenied:
            return "accessDenied";
        case Kind::missing:
            return "missing";
        case Kind::other:
            break;
    }
    std::ostringstream text;
    text << "other(" << std::quoted(message_) << ")";
    return text.str();
}

}  // namespace vantle
