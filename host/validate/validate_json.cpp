#include "host/validate/validate_json.h"

#include "host/console/json.h"
#include "host/console/output.h"
#include "host/validate/checks.h"
#include "htdrdd91/platform/encoding.h"

#include <nlohmann/json.hpp>

namespace htdrdd::host {
namespace {

using Json = nlohmann::ordered_json;

void Put(Json& object, const Place& place) {
    object[place.id] = place.lPosition;
    if (!place.name.empty()) object[std::string(place.id) + "Name"] = ToUtf8(place.name);
}

const char* NameOf(Owner owner) {
    switch (owner) {
    case Owner::Definition: return "definition";
    case Owner::Objectives: return "objectives";
    case Owner::Objective: return "objective";
    case Owner::None: break;
    }
    return "";
}

class JsonReport final : public Report {
public:
    explicit JsonReport(const clsHTDRDD& definition) : definition_(definition) {}

    void Begin(const Check& check) override {
        check_ = {{"check", check.id}};
        if (check.owner != Owner::None) check_["of"] = NameOf(check.owner);
        for (const Place& place : PlacesOf(definition_, {.lSubtest = check.objective})) Put(check_, place);
        found_ = false;
    }
    void Find(const Finding& finding) override {
        if (!found_) PrintHead(false);
        Json object = Json::object();
        if (finding.lRule > 0) object = {{"rule", finding.lRule}, {"caption", ToUtf8(finding.sCaption)}};
        object["message"] = ToUtf8(finding.sMessage);
        for (const Place& place : PlacesOf(definition_, finding.offender)) Put(object, place);
        Print((found_ ? ",\n      " : "\n      ") + JsonText(object));
        found_ = true;
    }
    void End() override {
        if (!found_) PrintHead(true);
        Print(found_ ? "\n    ]}" : "]}");
    }

private:
    void PrintHead(bool bValid) {
        check_["valid"] = bValid;
        std::string head = JsonText(check_);
        head.pop_back();
        Print((first_ ? "\n    " : ",\n    ") + head + ",\"findings\":[");
        first_ = false;
    }

    const clsHTDRDD& definition_;
    Json check_;
    bool first_ = true;
    bool found_ = false;
};

} // namespace

bool ValidateAsJson(const Ref<clsHTDRDD>& definition, bool bAll) {
    Print("{\n  \"file\": " + JsonText(ToUtf8(definition->FileName)) + ",\n  \"checks\": [");
    JsonReport report(*definition);
    const bool valid = RunChecks(definition, bAll, report);
    Print(std::string("\n  ],\n  \"valid\": ") + (valid ? "true" : "false") + "\n}\n");
    return valid;
}

} // namespace htdrdd::host
