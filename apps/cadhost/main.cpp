// cadhost: the CAD host stand-in as a program. Loads a module, opens the drawing in the host's
// windows and evaluates LISP forms from the command line, files or standard input, headless
// with a script for input or in real windows; see CommandLine.h for the options, ScriptReader.h
// and ScriptPlayer.h for scripts and FormRunner.h for the transcript and the exit status.

#include "apps/cadhost/CommandLine.h"
#include "apps/cadhost/FormRunner.h"
#include "apps/cadhost/ScriptPlayer.h"
#include "apps/cadhost/ScriptReader.h"
#include "apps/cadhost/WindowSystem.h"
#include "host/session/Host.h"
#include "host/ui/MainFrame.h"

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

int RunForms(const CommandLine& options, FormRunner& runner) {
    if (!options.sources.empty()) return runner.RunAll(options.sources);
    if (isatty(STDIN_FILENO)) return runner.RunInteractive(std::cin);
    const std::string input(std::istreambuf_iterator<char>(std::cin), {});
    return runner.RunAll({{"standard input", input}});
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
    host::EventLog events(std::cout);
    std::vector<ScriptLine> script;
    if (!ScriptReader::Read(options.scriptText, &script, &error)) {
        events.Error(error);
        return 2;
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

    WindowSystem windows(options);
    host::MainFrame frame(drawing->Name(), windows.MainWindowArea());
    host::Host host(events, std::move(*drawing));
    host.SetWindows(frame.Main(), frame.Document());
    std::optional<ScriptPlayer> player;
    if (windows.Headless()) player.emplace(events, std::move(script)).Start();
    if (!host.Load(module, &error)) return Refuse(error);

    FormRunner runner(host, std::cout);
    const int status = RunForms(options, runner);
    if (!player) return status;
    player->Finish();
    return player->WindowLeftOpen() ? 3 : status;
}
