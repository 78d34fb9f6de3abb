#include "parcel/TableFile.h"

#include "host/ads/AdsCodes.h"
#include "host/ads/AdsServices.h"
#include "profile/ProfileFile.h"

#include <cstdlib>
#include <strings.h>
#include <vector>

namespace {

constexpr char TypesSection[] = "Types";

std::string HostString(const char* variable) {
    resbuf value{};
    if (acedGetVar(variable, &value) != RTNORM || value.restype != RTSTR) return {};
    std::string text = value.resval.rstring ? value.resval.rstring : "";
    std::free(value.resval.rstring);
    return text;
}

} // namespace

TableFile::TableFile(StringStore& layers, IntStore& usedFlags, RowStore& rows,
                     std::string& typeChoices)
    : layers(layers), usedFlags(usedFlags), rows(rows), typeChoices(typeChoices) {}

// The name may be of any length: the text grows as it needs to.
std::string TableFile::DefaultName() {
    std::string name = HostString("DWGPREFIX") + HostString("DWGNAME");
    name.resize(name.size() < 4 ? 0 : name.size() - 4);
    return name;
}

int TableFile::Save(const std::string& path) {
    ProfileFile file;
    if (!file.Open(path, 1, 1, 1, 0)) return 0;
    // Nothing of an older file survives.
    file.CloseProfile();
    for (int i = 0; i < rows.GetSize(); ++i) file.SetValue(rows[i].Layer, "Type", rows[i].Type);
    for (int i = 0; i < layers.GetSize(); ++i)
        file.SetValue(layers[i], "SelectedLayer", std::to_string(usedFlags[i]));
    int position = 0;
    for (size_t start = 0; start < typeChoices.size();) {
        size_t end = typeChoices.find('\n', start);
        if (end == std::string::npos) end = typeChoices.size();
        if (end > start)
            file.SetValue(TypesSection, typeChoices.substr(start, end - start),
                          std::to_string(position++));
        start = end + 1;
    }
    // The file is written when the object ends.
    return 1;
}

int TableFile::Load(const std::string& path) {
    ProfileFile file;
    if (!file.Open(path, 1, 0, 1, 0)) return 0;
    layers.SetSize(0);
    usedFlags.SetSize(0);
    rows.SetSize(0);
    typeChoices.clear();
    std::vector<std::string> sections, keys;
    file.GetSectionNames(sections);
    for (std::string name : sections) {
        name.erase(0, name.find_first_not_of(" \t\r\n\f\v"));
        if (name.empty() || strcasecmp(name.c_str(), TypesSection) == 0) continue;
        layers.Add(name);
        usedFlags.Add(std::atoi(file.GetValue(name, "SelectedLayer", "0").c_str()));
        keys.clear();
        file.GetSectionKeys(name, keys);
        for (const std::string& key : keys)
            if (strcasecmp(key.c_str(), "Type") == 0)
                rows.Add(ParcelRow{name, "0", file.GetValue(name, key, ""), "1"});
    }
    keys.clear();
    file.GetSectionKeys(TypesSection, keys);
    for (const std::string& key : keys) typeChoices += key + "\n";
    return 1;
}
