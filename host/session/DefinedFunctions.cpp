#include "host/session/DefinedFunctions.h"

#include "host/lisp/UpperCase.h"

namespace host {

void DefinedFunctions::Define(std::string_view name, Application& application, int code) {
    functions[UpperCase(name)] = DefinedFunction{&application, code};
}

bool DefinedFunctions::Undefine(std::string_view name, const Application& application, int code) {
    auto it = functions.find(UpperCase(name));
    if (it == functions.end() || it->second.application != &application || it->second.code != code)
        return false;
    functions.erase(it);
    return true;
}

void DefinedFunctions::UndefineAll(const Application& application) {
    std::erase_if(functions,
                  [&](const auto& entry) { return entry.second.application == &application; });
}

const DefinedFunction* DefinedFunctions::Find(std::string_view name) const {
    auto it = functions.find(UpperCase(name));
    return it == functions.end() ? nullptr : &it->second;
}

} // namespace host
