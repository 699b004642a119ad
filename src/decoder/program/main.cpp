#include <unistd.h>

#include <string_view>

#include "decoder/program/CommandLine.h"
#include "decoder/program/Modules.h"
#include "decoder/service/Service.h"

int main(int argc, char** argv) {
    using namespace vantle::decoder;
    if (argc == 3 && std::string_view(argv[1]) == "--serve") {
        const int status = runService(argv[2], loadModule);
        // This skips the exit handlers of the libraries, which may need rights that are given up.
        _exit(status);
    }
    return runCommandLine({argv, argv + argc});
}
