#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <string_view>

#include "reader/program/CommandLine.h"
#include "reader/recognition/Recognizer.h"
#include "reader/service/Service.h"
#include "support/SystemLog.h"

namespace {

int serve(const std::string& folder, const std::string& languages) {
    using namespace vantle::reader;
    // If the program ends, nobody waits for the text.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::string reason;
    auto recognizer = Recognizer::load(folder, languages, reason);
    if (!recognizer) vantle::systemLog("Text reader: " + reason);
    return runService(std::move(recognizer));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 4 && std::string_view(argv[1]) == "--serve") {
        const int status = serve(argv[2], argv[3]);
        // This skips the exit handlers of the libraries, which may need rights that are given up.
        _exit(status);
    }
    return vantle::reader::runCommandLine({argv, argv + argc});
}
