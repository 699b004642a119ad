#pragma once

namespace vantle {

/// An ordinary window of the program. Closing it only hides it. Main thread only.
class Window {
public:
    virtual ~Window() = default;

    virtual void makeKeyAndOrderFront() = 0;
    virtual void close() = 0;
};

}  // namespace vantle
