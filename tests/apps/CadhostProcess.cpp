#include "tests/apps/CadhostProcess.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A temporary file for one of the child's standard streams, removed when the run ends.
class StreamFile {
public:
    explicit StreamFile(const std::string& content) {
        char pattern[] = "/tmp/cadhost-test-XXXXXX";
        fd = mkstemp(pattern);
        path = pattern;
        if (!content.empty() && write(fd, content.data(), content.size()) < 0) ADD_FAILURE();
        lseek(fd, 0, SEEK_SET);
    }
    ~StreamFile() {
        close(fd);
        unlink(path.c_str());
    }
    std::string Content() const {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

    int fd;
    std::string path;
};

} // namespace

CadhostResult RunCadhost(const CadhostRun& run) {
    StreamFile in(run.input), out(""), err("");
    const pid_t child = fork();
    if (child == 0) {
        dup2(in.fd, STDIN_FILENO);
        dup2(out.fd, STDOUT_FILENO);
        dup2(err.fd, STDERR_FILENO);
        if (!run.workingDirectory.empty() && chdir(run.workingDirectory.c_str()) != 0) _exit(126);
        // Without a display the program runs headless, whoever runs the tests.
        unsetenv("DISPLAY");
        unsetenv("WAYLAND_DISPLAY");
        for (const auto& [name, value] : run.environment) setenv(name.c_str(), value.c_str(), 1);
        std::vector<char*> argv{const_cast<char*>(CADHOST_PATH)};
        for (const std::string& a : run.arguments) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        execv(CADHOST_PATH, argv.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    CadhostResult result;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    result.out = out.Content();
    result.err = err.Content();
    return result;
}

CadhostResult RunWithEcho(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"--module", ECHO_MODULE_PATH});
    return RunCadhost({arguments, "", "", {}});
}

CadhostResult RunWithScript(const std::string& script, std::vector<std::string> arguments) {
    StreamFile file(script);
    arguments.insert(arguments.begin(), {"--script", file.path});
    return RunWithEcho(std::move(arguments));
}

Folder::Folder() {
    char pattern[] = "/tmp/cadhost-folder-XXXXXX";
    path = mkdtemp(pattern);
}

Folder::~Folder() {
    std::filesystem::remove_all(path);
}

std::string Folder::Write(const std::string& name, const std::string& content) const {
    std::string file = path + "/" + name;
    std::ofstream(file, std::ios::binary) << content;
    return file;
}

std::string Folder::Read(const std::string& name) const {
    std::ifstream in(path + "/" + name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}
