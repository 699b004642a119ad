// Measures what a change in a folder of many known files costs, compared with a bare readdir of
// that folder.
//
// Usage: relist [FILES]   (default: 100,000)

#include <dirent.h>
#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "capture/CaptureWatcher.h"
#include "fakes/VirtualTime.h"
#include "platform/linux/LinuxFileManager.h"

namespace {

using namespace vantle;

/// Calls the watcher's handler on request, in place of a real change in the folder.
class Trigger final : public DirectoryEvents {
public:
    Result<std::shared_ptr<DirectoryEventSource>> open(const Url&, Handler handler) override {
        change = [handler] { handler({.contents = true}); };
        return std::shared_ptr<DirectoryEventSource>(std::make_shared<Source>());
    }
    std::function<void()> change;

private:
    struct Source final : DirectoryEventSource {
        int descriptor() const override { return 0; }
        void resume() override {}
        void cancel() override {}
    };
};

class NoMedia final : public MediaLoader {
public:
    std::unique_ptr<ImageFile> openImage(const Url&) override { return nullptr; }
    std::unique_ptr<RecordingFile> openRecording(const Url&) override { return nullptr; }
};

double milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

std::size_t bareReaddir(const std::string& path) {
    std::size_t names = 0;
    DIR* directory = opendir(path.c_str());
    while (readdir(directory) != nullptr) ++names;
    closedir(directory);
    return names;
}

std::filesystem::path folderOf(int files) {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "vantle-relist-XXXXXX").string();
    const std::filesystem::path folder = mkdtemp(pattern.data());
    for (int i = 0; i < files; ++i)
        std::ofstream(folder / ("Screenshot from 2026-01-01 10-00-" + std::to_string(i) + ".png"));
    return folder;
}

}  // namespace

int main(int argc, char** argv) {
    const int files = argc > 1 ? std::atoi(argv[1]) : 100'000;
    const auto folder = folderOf(files);

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler(time);
    fakes::ManualQueue queue(time);
    SystemWallClock clock;
    NoMedia media;
    LinuxFileManager fileManager(processEnvironment(), [](const Url&) { return false; });
    Trigger trigger;
    const auto watcher =
        CaptureWatcher::create({scheduler, queue, queue, trigger, fileManager, media, clock});
    watcher->start(Url::file(folder.string()));
    time.settle();

    constexpr int rounds = 25;
    std::vector<double> bare, change, ratio;
    for (int i = 0; i < rounds; ++i) {
        bare.push_back(milliseconds([&] { bareReaddir(folder.string()); }));
        change.push_back(milliseconds(trigger.change));
        ratio.push_back(change.back() / bare.back());
    }
    std::printf("%d known files, medians of %d rounds\n", files, rounds);
    std::printf("bare readdir   %8.2f ms\n", median(bare));
    std::printf("one change     %8.2f ms\n", median(change));
    std::printf("ratio          %8.2f\n", median(ratio));
    std::filesystem::remove_all(folder);
}
