#include "app/automation_server.hpp"

namespace brinewright {

Automation_Server::Automation_Server(const std::string& Socket_Path, Simulator& Sim, Automation_Hooks Hooks)
    : Its_Simulator(Sim), Its_Hooks(std::move(Hooks)), Socket(Socket_Path) {
    Socket.Set_Accepting(false);
    Socket.On_Open = [this](std::int64_t Id) {
        auto Session = std::make_unique<Automation_Session>(Target_Of(Its_Simulator), Its_Hooks);
        Session->Push = [this, Id](const std::string& Line) { Socket.Send_Line(Id, Line); };
        Sessions[Id] = std::move(Session);
    };
    Socket.On_Line = [this](std::int64_t Id, const std::string& Line) {
        const std::string Response = Sessions.at(Id)->Handle_Line(Line);
        if (!Response.empty()) Socket.Send_Line(Id, Response);
    };
    Socket.On_Overlong = [this](std::int64_t Id) {
        Socket.Send_Line(Id, Automation_Session::Overlong_Response());
    };
    Socket.On_Close = [this](std::int64_t Id) { Sessions.erase(Id); };
}

} // namespace brinewright
