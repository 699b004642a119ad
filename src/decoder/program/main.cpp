#include <unistd.h>

#include <string_view>

#include "decoder/program/CommandLine.h"
#include "decoder/program/Modules.h"
#include "decoder/service/Service.h"

int main(int argc, char** argv) {
    using namespace vantle::decoder;
    if (argc == 3 && std::string_view(argv[1]) == "--serve") {
        const int status = runService(argv[2], loadModule);
        // Without the endings of the libraries, which may ask for what is given up.
        _exit(status);
    }
    return runCommandLine({argv, argv + argc});
}
