#pragma once
// The LISP functions that modules defined with acedDefun: each name, in upper case as the reader
// makes symbols, belongs to one module and carries the code that acedGetFunCode answers while
// it runs. A second definition of a name replaces the first.

#include <map>
#include <string>
#include <string_view>

namespace host {

class Application;

struct DefinedFunction {
    Application* application = nullptr;
    int code = 0;
};

class DefinedFunctions {
public:
    void Define(std::string_view name, Application& application, int code);
    // Only the module that defined the name, with the same code, can take it away.
    bool Undefine(std::string_view name, const Application& application, int code);
    void UndefineAll(const Application& application);
    const DefinedFunction* Find(std::string_view name) const;

private:
    std::map<std::string, DefinedFunction, std::less<>> functions;
};

} // namespace host
