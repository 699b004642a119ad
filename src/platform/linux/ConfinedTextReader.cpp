#include "platform/linux/ConfinedTextReader.h"

#include <unistd.h>

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <variant>

#include "platform/linux/LibraryFile.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

/// The callbacks of one Reading, for as long as it exists. Main thread only.
struct Listener {
    TextReader::Callbacks callbacks;
    Url file;

    void progress(double fraction) const {
        // The callback may destroy the Reading and this object with it.
        if (const auto onProgress = callbacks.onProgress) onProgress(fraction);
    }

    void end(const PictureReading::Outcome& outcome) const {
        const auto onDone = callbacks.onDone;
        if (const auto* const problem = std::get_if<ReadingProblem>(&outcome))
            onDone(failureOf(*problem, file));
        else
            onDone(std::get<std::string>(outcome));
    }
};

/// Passes what a thread reports to the main thread, until the Reading is destroyed: the run loop
/// may end after that.
class Delivery {
public:
    Delivery(Scheduler& main, std::weak_ptr<const Listener> listener)
        : main_(&main), listener_(std::move(listener)) {}

    /// Any thread.
    template <typename Call>
    void post(Call call) {
        const std::lock_guard lock(mutex_);
        if (!main_) return;
        main_->async([listener = listener_, call = std::move(call)] {
            if (const auto strong = listener.lock()) call(*strong);
        });
    }

    void close() {
        const std::lock_guard lock(mutex_);
        main_ = nullptr;
    }

private:
    std::mutex mutex_;
    Scheduler* main_;
    const std::weak_ptr<const Listener> listener_;
};

class ThreadedReading final : public TextReader::Reading {
public:
    ThreadedReading(Scheduler& main, const Url& file, TextReader::Callbacks callbacks)
        : listener_(std::make_shared<const Listener>(Listener{std::move(callbacks), file})),
          delivery_(std::make_shared<Delivery>(main, listener_)) {}
    ~ThreadedReading() override {
        delivery_->close();
        if (reading_) reading_->stop();
    }
    ThreadedReading(const ThreadedReading&) = delete;
    ThreadedReading& operator=(const ThreadedReading&) = delete;

    void fail() { end(ReadingProblem::notStarted, *delivery_); }

    void start(std::shared_ptr<PictureReading> reading, int page) {
        reading_ = std::move(reading);
        try {
            std::thread([reading = reading_, delivery = delivery_, file = listener_->file, page] {
                end(reading->run(file, page,
                                 [&delivery](double fraction) {
                                     delivery->post([fraction](const Listener& listener) {
                                         listener.progress(fraction);
                                     });
                                 }),
                    *delivery);
            }).detach();
        } catch (const std::system_error& error) {
            systemLog("Cannot start a thread to read text: " + std::string(error.what()));
            fail();
        }
    }

private:
    static void end(const PictureReading::Outcome& outcome, Delivery& delivery) {
        delivery.post([outcome](const Listener& listener) { listener.end(outcome); });
    }

    const std::shared_ptr<const Listener> listener_;
    const std::shared_ptr<Delivery> delivery_;
    std::shared_ptr<PictureReading> reading_;
};

}  // namespace

ConfinedTextReader::ConfinedTextReader(Scheduler& main, Environment environment,
                                       ReadingPrograms programs, ReadingTimeouts timeouts)
    : main_(main),
      environment_(std::move(environment)),
      programs_(std::move(programs)),
      timeouts_(timeouts) {}

std::optional<RecognitionData> ConfinedTextReader::data() const {
    return installedRecognitionData(recognitionLanguages(environment_), environment_);
}

bool ConfinedTextReader::isAvailable() const {
    return access(programs_.reader.c_str(), X_OK) == 0 &&
           isLibraryInstalled(programs_.library.c_str()) && data().has_value();
}

std::unique_ptr<TextReader::Reading> ConfinedTextReader::read(const Url& file, int page,
                                                              Callbacks callbacks) {
    auto reading = std::make_unique<ThreadedReading>(main_, file, std::move(callbacks));
    if (const auto available = data())
        reading->start(std::make_shared<PictureReading>(programs_, *available, timeouts_), page);
    else
        reading->fail();
    return reading;
}

}  // namespace vantle
