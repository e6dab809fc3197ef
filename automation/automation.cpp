#include "automation/automation.hpp"

#include "automation/core.hpp"
#include "automation/methods.hpp"
#include "automation/rpc_error.hpp"
#include "automation/watch_list.hpp"

#include <exception>
#include <optional>
#include <utility>

namespace brinewright {

namespace {

Json Error_Response(const Json& Id, const Rpc_Error& Failure) {
    return {{"jsonrpc", "2.0"},
            {"id", Id},
            {"error", {{"code", Failure.Code}, {"message", To_UTF8(Failure.Message)}}}};
}

void Check_Request(const Json& Request) {
    const auto Refuse = [](const char* Why) {
        throw Rpc_Error{rpc_code::Invalid_Request, std::string("Invalid Request: ") + Why};
    };
    if (!Request.is_object()) Refuse("an object is wanted");
    const auto Version = Request.find("jsonrpc");
    if (Version == Request.end() || *Version != "2.0") Refuse("jsonrpc must be \"2.0\"");
    const auto Method = Request.find("method");
    if (Method == Request.end() || !Method->is_string()) Refuse("method must be a text");
    if (const auto Params = Request.find("params"); Params != Request.end() && !Params->is_structured())
        Refuse("params must be an object or an array");
}

Json Run_Request(Automation_Core& Core, const Json& Request) {
    Check_Request(Request);
    const Rpc_Method& Method = Find_Method(Request.at("method").get_ref<const std::string&>());
    return Method.Run(Core, Bind_Parameters(Method, Request));
}

// Nothing for a notification, that is a good request without an id.
std::optional<Json> Answer_Request(Automation_Core& Core, const Json& Request) {
    const auto Given_Id = Request.is_object() ? Request.find("id") : Request.end();
    const bool Has_Id = Request.is_object() && Given_Id != Request.end();
    const Json Id = Has_Id && !Given_Id->is_structured() && !Given_Id->is_boolean() ? *Given_Id : Json();
    std::optional<Rpc_Error> Failure;
    try {
        if (Has_Id && Id.is_null() && !Given_Id->is_null())
            throw Rpc_Error{rpc_code::Invalid_Request,
                            "Invalid Request: id must be a text, a number or null"};
        Json Result = Run_Request(Core, Request);
        if (!Has_Id) return std::nullopt;
        return Json{{"jsonrpc", "2.0"}, {"id", Id}, {"result", std::move(Result)}};
    } catch (const Rpc_Error& Told) {
        Failure = Told;
    } catch (const User_Refusal& Told) {
        Failure = Rpc_Error{rpc_code::Refused, Told.what()};
    } catch (const std::exception& Told) {
        Failure = Rpc_Error{rpc_code::Internal, std::string("Internal error: ") + Told.what()};
    }
    if (!Has_Id && Failure->Code != rpc_code::Invalid_Request) return std::nullopt;
    return Error_Response(Id, *Failure);
}

std::string Answer_Batch(Automation_Core& Core, const Json& Requests) {
    if (Requests.empty())
        throw Rpc_Error{rpc_code::Invalid_Request, "Invalid Request: a batch holds one request at least"};
    Json Responses = Json::array();
    for (const Json& Request : Requests)
        if (auto Response = Answer_Request(Core, Request)) Responses.push_back(std::move(*Response));
    return Responses.empty() ? std::string() : Json_Line(Responses);
}

std::string Answer_Line(Automation_Core& Core, std::string_view Line) {
    try {
        if (Line.size() > Automation_Session::Line_Limit_Bytes)
            return Automation_Session::Overlong_Response();
        const Json Request = Parse_Json(Line);
        if (Request.is_array()) return Answer_Batch(Core, Request);
        const auto Response = Answer_Request(Core, Request);
        return Response ? Json_Line(*Response) : std::string();
    } catch (const Rpc_Error& Failure) {
        return Json_Line(Error_Response(nullptr, Failure));
    }
}

} // namespace

Automation_Session::Automation_Session(Automation_Target Target, Automation_Hooks Hooks)
    : Core(std::make_shared<Automation_Core>(Automation_Core{Target, std::move(Hooks), &Push, {}, 0})) {
    Look_When_Settled(Core);
}

Automation_Session::~Automation_Session() { Core->Push = nullptr; }

std::string Automation_Session::Handle_Line(std::string_view Line) {
    const auto Held = Core; // the session may end while it pushes what the line has changed
    return Answer_Line(*Held, Line);
}

std::string Automation_Session::Overlong_Response() {
    return Json_Line(
        Error_Response(nullptr, {rpc_code::Invalid_Request, "Invalid Request: the line is too long"}));
}

} // namespace brinewright
