// cadhost: the CAD host stand-in as a program. Loads a module, opens the drawing and evaluates
// LISP forms from the command line, files or standard input; see CommandLine.h for the options
// and FormRunner.h for the transcript and the exit status.

#include "apps/cadhost/CommandLine.h"
#include "apps/cadhost/FormRunner.h"
#include "host/session/Host.h"

#include <filesystem>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

int Refuse(const std::string& message) {
    std::cerr << "cadhost: " << message << '\n';
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    CommandLine options;
    std::string error;
    if (!options.Parse(std::vector<std::string>(argv + 1, argv + argc), &error)) {
        std::cerr << "cadhost: " << error << '\n' << CommandLine::Usage();
        return 2;
    }
    if (options.help) {
        std::cout << CommandLine::Usage();
        return 0;
    }
    std::optional<host::Drawing> drawing = host::Drawing::At(options.drawingPath);
    if (!drawing) return Refuse("--drawing names no file: " + options.drawingPath);

    std::string module = options.modulePath;
    if (module.empty()) {
        module = CommandLine::DefaultModule();
        std::error_code ignored;
        if (!std::filesystem::exists(module, ignored))
            return Refuse("the KERVGRID module is not built: " + module +
                          " does not exist; name a module with --module PATH");
    }

    host::EventLog events(std::cout);
    host::Host host(events, std::move(*drawing));
    if (!host.Load(module, &error)) return Refuse(error);

    FormRunner runner(host, std::cout);
    if (!options.sources.empty()) return runner.RunAll(options.sources);
    if (isatty(STDIN_FILENO)) return runner.RunInteractive(std::cin);
    const std::string input(std::istreambuf_iterator<char>(std::cin), {});
    return runner.RunAll({{"standard input", input}});
}
