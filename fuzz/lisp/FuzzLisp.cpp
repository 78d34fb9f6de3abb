// Fuzzes the LISP reader with any bytes. Whatever it reads must print as text that reads back
// to the same value (reals to the same printed value, since printing keeps six digits), and
// must cross to a result-buffer chain and back unchanged.

#include "host/ads/AdsChains.h"
#include "host/lisp/ChainConverter.h"
#include "host/lisp/LispPrinter.h"
#include "host/lisp/LispReader.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

using host::LispType;
using host::LispValue;

bool Contains(const LispValue& value, LispType type) {
    if (value.Type() == type) return true;
    for (const LispValue& item : value.Items())
        if (Contains(item, type)) return true;
    return false;
}

void Check(bool condition) {
    if (!condition) __builtin_trap();
}

void CheckPrintedForm(const LispValue& form) {
    const std::string printed = host::LispPrinter::Print(form);
    host::LispReader reader(printed);
    LispValue again;
    Check(reader.Next(&again) == host::ReadStatus::Form);
    Check(host::LispPrinter::Print(again) == printed);
    if (!Contains(form, LispType::Real)) Check(again == form);
    LispValue rest;
    Check(reader.Next(&rest) == host::ReadStatus::End);
}

void CheckChain(const LispValue& form) {
    std::string error;
    resbuf* chain = host::ChainConverter::ToChain({form}, &error);
    Check((chain == nullptr) == Contains(form, LispType::Symbol));
    std::vector<LispValue> back;
    Check(host::ChainConverter::ToElements(chain, &back));
    if (chain) Check(back.size() == 1 && back.front() == form);
    LispValue returned;
    Check(host::ChainConverter::ToReturnValue(chain, &returned));
    acutRelRb(chain);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    host::LispReader reader(std::string_view(reinterpret_cast<const char*>(data), size));
    LispValue form;
    while (reader.Next(&form) == host::ReadStatus::Form) {
        CheckPrintedForm(form);
        CheckChain(form);
    }
    return 0;
}
