#pragma once

#include "tests/automation/little_desktop.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace brinewright {

using Json = nlohmann::json;

// Sends requests as a peer does and takes the responses apart.
struct Automation_Test : ::testing::Test, Little_Desktop {
    Json Ask(const std::string& Method, const Json& Params) {
        const Json Request{{"jsonrpc", "2.0"}, {"id", 42}, {"method", Method}, {"params", Params}};
        Json Response = Json::parse(Session.Handle_Line(Request.dump()));
        EXPECT_EQ(Response.value("jsonrpc", ""), "2.0");
        EXPECT_EQ(Response.value("id", 0), 42);
        return Response;
    }
    Json Result(const std::string& Method, const Json& Params = Json::object()) {
        Json Response = Ask(Method, Params);
        EXPECT_TRUE(Response.contains("result")) << Response;
        return Response["result"];
    }
    int Error(const std::string& Method, const Json& Params = Json::object()) {
        Json Response = Ask(Method, Params);
        EXPECT_FALSE(Response.contains("result")) << Response;
        return Response["error"].value("code", 0);
    }
    Json Get(const std::string& Path) { return Result("get", {{"path", Path}}); }
    int Get_Error(const std::string& Path) { return Error("get", {{"path", Path}}); }
    int Set_Error(const std::string& Path, const Json& Value) {
        return Error("set", {{"path", Path}, {"value", Value}});
    }
    void Set(const std::string& Path, const Json& Value) {
        Result("set", {{"path", Path}, {"value", Value}});
    }
};

} // namespace brinewright
