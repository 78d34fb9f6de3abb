// cadhost at a terminal: a pseudo-terminal stands in for the person typing.

#include <gtest/gtest.h>
#include <pty.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct TerminalRun {
    int status = -1;
    std::string screen;
};

TerminalRun RunAtTerminal(const std::string& typed) {
    int master = -1;
    const pid_t child = forkpty(&master, nullptr, nullptr, nullptr);
    if (child == 0) {
        unsetenv("DISPLAY");
        unsetenv("WAYLAND_DISPLAY");
        execl(CADHOST_PATH, CADHOST_PATH, "--module", ECHO_MODULE_PATH, nullptr);
        _exit(127);
    }
    TerminalRun run;
    if (write(master, typed.data(), typed.size()) < 0) ADD_FAILURE();
    char buffer[4096];
    for (ssize_t n; (n = read(master, buffer, sizeof buffer)) > 0;) run.screen.append(buffer, n);
    close(master);
    int status = 0;
    waitpid(child, &status, 0);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

int Count(const std::string& text, const std::string& part) {
    int n = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++n;
    return n;
}

TEST(Interactive, PromptsForEachFormAndGoesOnAfterAnUnreadableOne) {
    // Ctrl-D at the start of a line ends the input.
    const TerminalRun run = RunAtTerminal("(ECHO 1)\n(ECHO\n2)\n)\n(ECHO 3)\n\x04");
    EXPECT_EQ(run.status, 2);
    // One prompt at the start and one after each finished line: the open form gets none.
    EXPECT_EQ(Count(run.screen, "Command: "), 5) << run.screen;
    EXPECT_EQ(Count(run.screen, "(1)\r\n"), 1) << run.screen;
    EXPECT_EQ(Count(run.screen, "(2)\r\n"), 1) << run.screen;
    EXPECT_EQ(Count(run.screen, "(3)\r\n"), 1) << run.screen;
    EXPECT_EQ(Count(run.screen, ";; error: unreadable LISP in standard input, line 1, column 1: "
                                "unexpected ')'"),
              1)
        << run.screen;
}

TEST(Interactive, AFormLeftOpenAtTheEndIsUnreadable) {
    const TerminalRun run = RunAtTerminal("(ECHO 1)\n(ECHO\n\x04");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(Count(run.screen, "'(' is not closed"), 1) << run.screen;
}

} // namespace
