#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/ads/AdsLisp.h"
#include "host/ads/AdsServices.h"
#include "host/doc/AcApDocManager.h"
#include "host/lisp/LispPrinter.h"
#include "host/rx/AcRxDynamicLinker.h"
#include "platform/afx/AfxApp.h"
#include "platform/backend/HeadlessBackend.h"
#include "platform/user/Dialog.h"
#include "platform/user/Input.h"
#include "platform/user/WindowManager.h"
#include "tests/host/TestModule.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace {

using host::LispOutcome;
using host::LispValue;

class HostTest : public ::testing::Test {
protected:
    std::string Print(const LispOutcome& outcome) {
        switch (outcome.kind) {
        case LispOutcome::Kind::Value: return host::LispPrinter::Print(outcome.value);
        case LispOutcome::Kind::NoValue: return "<no value>";
        case LispOutcome::Kind::Error: return "error: " + outcome.error;
        }
        return {};
    }

    // The module outlives the host, which talks to it while it shuts down.
    TestModule module;
    std::ostringstream transcript;
    host::EventLog events{transcript};
    std::optional<host::Host> session{std::in_place, events,
                                      *host::Drawing::At("/work/site/plan.dwg")};
};

TEST_F(HostTest, ModuleHearsInitAndDrawingOnLoadAndTheirEndsOnShutdown) {
    host::Application& app = module.Start(*session);
    EXPECT_EQ(module.Messages(), (std::vector{AcRx::kInitAppMsg, AcRx::kLoadDwgMsg}));
    EXPECT_EQ(module.AppId(), app.Id());
    EXPECT_TRUE(app.Unlocked());
    EXPECT_TRUE(app.MdiAware());
    session.reset();
    EXPECT_EQ(module.Messages(), (std::vector{AcRx::kInitAppMsg, AcRx::kLoadDwgMsg,
                                              AcRx::kUnloadDwgMsg, AcRx::kUnloadAppMsg}));
}

TEST_F(HostTest, LinkerAnswersFalseForAnUnknownModule) {
    AcRxDynamicLinker* linker = acrxDynamicLinker;
    ASSERT_NE(linker, nullptr);
    int stranger = 0;
    EXPECT_FALSE(linker->unlockApplication(&stranger));
    EXPECT_FALSE(linker->registerAppMDIAware(&stranger));
    EXPECT_EQ(AcRxDynamicLinker::cast(acrxSysRegistry()), nullptr);
    EXPECT_EQ(acrxSysRegistry()->at("NoSuchService"), nullptr);
}

TEST_F(HostTest, CallsReachTheHandlerOfTheirCodeWithTheArguments) {
    std::vector<std::string> seen;
    auto record = [&](const char* name) {
        return [&seen, name] {
            std::string args;
            for (const resbuf* rb = acedGetArgs(); rb; rb = rb->rbnext)
                args += " " + std::to_string(rb->restype);
            seen.push_back(name + std::to_string(acedGetFunCode()) + args);
        };
    };
    module.Define("FIRST", 7, record("first"));
    module.Define("second", 3, record("second"));
    module.Start(*session);
    session->Call("first", {});
    session->Call("SECOND", {LispValue::String("a"), LispValue::Integer(1)});
    EXPECT_EQ(seen, (std::vector<std::string>{"first7", "second3 5005 5003"}));
}

TEST_F(HostTest, TheLastReturnCallSetsTheValueAndNoneMeansNil) {
    module.Define("NOTHING", 0, [] {});
    module.Define("VOID", 1, [] { acedRetVoid(); });
    module.Define("NIL", 2, [] {
        acedRetStr("replaced");
        acedRetNil();
    });
    module.Define("LIST", 3, [] {
        resbuf* chain = acutBuildList(RTLB, RTSTR, "A", RTSTR, "12", RTLE, 0);
        EXPECT_EQ(acedRetList(chain), RTNORM);
        acutRelRb(chain);
    });
    module.Define("BROKEN", 4, [] {
        acedRetStr("kept");
        resbuf* chain = acutBuildList(RTLB, 0);
        EXPECT_EQ(acedRetList(chain), RTERROR);
        acutRelRb(chain);
    });
    module.Start(*session);
    EXPECT_EQ(Print(session->Call("NOTHING", {})), "nil");
    EXPECT_EQ(Print(session->Call("VOID", {})), "<no value>");
    EXPECT_EQ(Print(session->Call("NIL", {})), "nil");
    EXPECT_EQ(Print(session->Call("LIST", {})), R"(("A" "12"))");
    EXPECT_EQ(Print(session->Call("BROKEN", {})), R"("kept")");
}

TEST_F(HostTest, CallsFailForUnknownNamesAndArgumentsWithoutAChainForm) {
    bool ran = false;
    module.Define("RUN", 0, [&] { ran = true; });
    module.Start(*session);
    EXPECT_EQ(Print(session->Call("walk", {})), "error: no function definition: WALK");
    EXPECT_EQ(Print(session->Call("RUN", {LispValue::Symbol("X")})), "error: bad argument type: X");
    EXPECT_FALSE(ran);
}

TEST_F(HostTest, ApiOutsideOfACallOrMessageIsRefused) {
    EXPECT_EQ(acedGetFunCode(), RTERROR);
    EXPECT_EQ(acedGetArgs(), nullptr);
    EXPECT_EQ(acedRetVoid(), RTERROR);
    EXPECT_EQ(acedRetNil(), RTERROR);
    EXPECT_EQ(acedRetStr("x"), RTERROR);
    EXPECT_EQ(acedRetList(nullptr), RTERROR);
    EXPECT_EQ(acedDefun("X", 0), RTERROR);
    EXPECT_EQ(acedUndef("X", 0), RTERROR);
    session.reset();
    EXPECT_EQ(acrxSysRegistry(), nullptr);
    EXPECT_EQ(acDocManagerPtr(), nullptr);
    EXPECT_EQ(acedAlert("x"), RTERROR);
    EXPECT_EQ(adsw_acadMainWnd(), nullptr);
}

TEST_F(HostTest, UndefineNeedsTheSameCodeAndEndsWithTheDrawing) {
    std::vector<int> answers;
    module.Define("KEEP", 0, [&] {
        answers.push_back(acedUndef("KEEP", 1));
        answers.push_back(acedUndef("KEEP", 0));
        answers.push_back(acedDefun("KEEP", 0));
        answers.push_back(acedDefun("", 1));
        answers.push_back(acedDefun("NEG", -1));
    });
    module.Start(*session);
    session->Call("KEEP", {});
    EXPECT_EQ(answers, (std::vector<int>{RTERROR, RTNORM, RTNORM, RTERROR, RTERROR}));
    EXPECT_NE(session->Functions().Find("keep"), nullptr);
    session->UnloadAll();
    EXPECT_EQ(session->Functions().Find("KEEP"), nullptr);
}

TEST_F(HostTest, SystemVariablesComeFromTheDrawing) {
    resbuf value{};
    ASSERT_EQ(acedGetVar("DWGPREFIX", &value), RTNORM);
    EXPECT_EQ(value.restype, RTSTR);
    EXPECT_STREQ(value.resval.rstring, "/work/site/");
    std::free(value.resval.rstring);
    ASSERT_EQ(acedGetVar("dwgname", &value), RTNORM);
    EXPECT_STREQ(value.resval.rstring, "plan.dwg");
    std::free(value.resval.rstring);
    EXPECT_EQ(acedGetVar("CLAYER", &value), RTERROR);
    EXPECT_EQ(value.restype, RTNONE);
}

TEST(Drawing, PathsAreAbsoluteAndNameAFile) {
    const std::string here = std::filesystem::current_path().string();
    const host::Drawing byDefault = *host::Drawing::At("");
    EXPECT_EQ(byDefault.Prefix(), here + "/");
    EXPECT_EQ(byDefault.Name(), "drawing.dwg");
    const host::Drawing relative = *host::Drawing::At("sub/../lots/a.dwg");
    EXPECT_EQ(relative.Prefix(), here + "/lots/");
    EXPECT_EQ(relative.Name(), "a.dwg");
    EXPECT_EQ(host::Drawing::At("/top.dwg")->Prefix(), "/");
    EXPECT_FALSE(host::Drawing::At("folder/"));
    EXPECT_FALSE(host::Drawing::At(".."));
}

TEST_F(HostTest, ResourceHandlesStack) {
    AcApDocManager* documents = acDocManagerPtr();
    ASSERT_NE(documents, nullptr);
    // Handles are opaque: any two distinct addresses do.
    char first = 0, second = 0;
    const auto module1 = reinterpret_cast<HINSTANCE>(&first);
    const auto module2 = reinterpret_cast<HINSTANCE>(&second);
    documents->popResourceHandle();
    EXPECT_EQ(documents->currentResourceHandle(), nullptr);
    documents->pushResourceHandle(module1);
    documents->pushResourceHandle(module2);
    EXPECT_EQ(documents->currentResourceHandle(), module2);
    EXPECT_EQ(AfxGetResourceHandle(), module2);
    documents->popResourceHandle();
    EXPECT_EQ(documents->currentResourceHandle(), module1);
    documents->popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}

TEST(HostFileDialog, OpensInTheDrawingsFolderAndAnswersRtnormOrRterror) {
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "filed";
    std::filesystem::create_directories(folder / "sub");
    std::ostringstream transcript;
    host::EventLog events{transcript};
    host::Host session(events, *host::Drawing::At((folder / "plan.dwg").string()));
    std::string shownFolder;
    plat::Headless().Schedule([&] {
        shownFolder = GetWindowString(GetDlgItem(GetActiveWindow(), 1088));
        plat::PushKey(VK_ESCAPE);
    });
    resbuf result{};
    EXPECT_EQ(acedGetFileD("Load", "plan", "tab", 0, &result), RTERROR);
    EXPECT_EQ(result.restype, RTNONE);
    EXPECT_EQ(shownFolder, folder.string());

    // A relative folder in the default is the drawing's; the extension may come with its dot.
    plat::Headless().Schedule([] { plat::PushKey(VK_RETURN); });
    ASSERT_EQ(acedGetFileD("Save", "sub/plan", ".tab", 3, &result), RTNORM);
    ASSERT_EQ(result.restype, RTSTR);
    EXPECT_EQ(result.resval.rstring, (folder / "sub" / "plan.tab").string());
    std::free(result.resval.rstring);
    EXPECT_EQ(acedGetFileD("Save", "plan", "tab", 3, nullptr), RTERROR);
    std::filesystem::remove_all(folder);
}

TEST_F(HostTest, WindowsAreTheOnesTheProgramGave) {
    char first = 0, second = 0;
    const auto main = reinterpret_cast<HWND>(&first);
    const auto document = reinterpret_cast<HWND>(&second);
    session->SetWindows(main, document);
    EXPECT_EQ(adsw_acadMainWnd(), main);
    EXPECT_EQ(adsw_acadDocWnd(), document);
}

TEST_F(HostTest, EventsAreOneLineEach) {
    // The alert's own box does not print again; the framework's box does.
    plat::Headless().Schedule([] { plat::PushKey(VK_RETURN); });
    EXPECT_EQ(acedAlert("Count of layers\nnot equal"), RTNORM);
    acdbFail("\n Error");
    plat::Headless().Schedule([] { plat::PushKey(VK_RETURN); });
    EXPECT_EQ(AfxMessageBox("Item not found"), IDOK);
    Beep(1000, 50);
    plat::ReportEvent("sound", "a\nb");
    events.Error("no function definition: X");
    EXPECT_EQ(transcript.str(), ";; alert: Count of layers\\nnot equal\n"
                                ";; fail: \\n Error\n"
                                ";; msgbox: Item not found\n"
                                ";; beep 1000 50\n"
                                ";; sound: a\\nb\n"
                                ";; error: no function definition: X\n");
}

TEST_F(HostTest, AlertIsABoxOwnedByTheActiveWindow) {
    std::vector<std::string> seen;
    auto look = [&] {
        HWND box = GetActiveWindow();
        seen.push_back(GetWindowString(box) + " owned by " +
                       GetWindowString(GetWindow(box, GW_OWNER)) +
                       (ModalDepth() == 1 ? ", modal" : ""));
        plat::PushKey(VK_RETURN);
    };
    const HWND main = CreateWindowEx(0, "Static", "Main", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                                     nullptr, nullptr, nullptr, nullptr);
    session->SetWindows(main, nullptr);
    plat::Headless().Schedule(look);
    acedAlert("first");
    const HWND other = CreateWindowEx(0, "Static", "Other", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                      main, nullptr, nullptr, nullptr);
    plat::Headless().Schedule(look);
    acedAlert("second");
    DestroyWindow(other);
    DestroyWindow(main);
    EXPECT_EQ(seen, (std::vector<std::string>{"AutoCAD owned by Main, modal",
                                              "AutoCAD owned by Other, modal"}));
}

TEST_F(HostTest, ModuleFilesThatAreNoModulesAreRefusedWithTheReason) {
    std::string error;
    EXPECT_EQ(session->Load("/no/such/module.so", &error), nullptr);
    EXPECT_EQ(error, "module /no/such/module.so does not exist");
    const std::string text = testing::TempDir() + "not-a-library.so";
    std::ofstream(text) << "text";
    EXPECT_EQ(session->Load(text, &error), nullptr);
    EXPECT_EQ(error.rfind("cannot load module " + text + ": ", 0), 0u) << error;
    std::filesystem::remove(text);
}

} // namespace
