#include "platform_qt/local_line_server.hpp"

#include "platform_linux/local_socket.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace brinewright {

Local_Line_Server::Local_Line_Server(const std::string& Path) : Socket_Path(Path) {
    Unique_Fd Socket = Listen_Locally(Path);
    struct stat Made {};
    if (::lstat(Path.c_str(), &Made) == 0) {
        Device = Made.st_dev;
        Node = Made.st_ino;
    }
    Listening = std::make_unique<Acceptor>(std::move(Socket),
                                           [this](Unique_Fd Fresh) { Take_Client(std::move(Fresh)); });
}

Local_Line_Server::~Local_Line_Server() {
    struct stat Found {};
    if (::lstat(Socket_Path.c_str(), &Found) == 0 && Found.st_dev == Device && Found.st_ino == Node) {
        ::unlink(Socket_Path.c_str());
    }
}

void Local_Line_Server::Take_Client(Unique_Fd Socket) {
    if (!Is_Same_User(Socket.Get())) return;
    const std::int64_t Id = ++Last_Id;
    Client& Fresh = Clients[Id];
    Fresh.Link = std::make_unique<Stream>(std::move(Socket), Waiting_Limit_Bytes);
    Fresh.Link->On_Readable = [this, Id] { Read(Id); };
    Fresh.Link->On_Lost = [this, Id] {
        Clients.erase(Id);
        if (On_Close) On_Close(Id);
    };
    if (On_Open) On_Open(Id);
}

void Local_Line_Server::Read(std::int64_t Id) {
    Client& From = Clients.at(Id);
    std::array<char, 64 * 1024> Chunk;
    const std::ptrdiff_t Count = From.Link->Receive(Chunk.data(), Chunk.size());
    if (Count < 0) return;
    // A client that has only ended its sending still gets the answers to what it sent.
    if (Count == 0) From.Input_Ended = true;
    From.Received.append(Chunk.data(), static_cast<std::size_t>(Count));
    From.Link->Set_Reading(false);
    Deliver_One(Id);
}

void Local_Line_Server::Deliver_One(std::int64_t Id) {
    const auto Found = Clients.find(Id);
    if (Found == Clients.end() || Found->second.Closing) return;
    Client& From = Found->second;
    const std::size_t End = From.Received.find('\n', From.Searched);
    const std::size_t Length = (End == std::string::npos ? From.Received.size() : End) - From.Start;
    if (Length > Line_Limit_Bytes) return Refuse_Overlong(Id);
    if (End == std::string::npos) return Await_More(Id, From);
    const std::string Line = From.Received.substr(From.Start, Length);
    From.Start = From.Searched = End + 1;
    Later.Call([this, Id] { Deliver_One(Id); });
    if (On_Line) On_Line(Id, Line);
}

void Local_Line_Server::Await_More(std::int64_t Id, Client& From) {
    From.Received.erase(0, From.Start);
    From.Start = 0;
    From.Searched = From.Received.size();
    if (From.Input_Ended) return Close(Id); // a last line without its line feed is not whole, and dropped
    From.Link->Set_Reading(true);
}

void Local_Line_Server::Refuse_Overlong(std::int64_t Id) {
    if (On_Overlong) On_Overlong(Id);
    Close(Id);
}

bool Local_Line_Server::Send_Line(std::int64_t Id, std::string_view Text) {
    const auto Found = Clients.find(Id);
    if (Found == Clients.end()) return false;
    std::string Line;
    Line.reserve(Text.size() + 1);
    Line.append(Text) += '\n';
    const Stream::Sent Result = Found->second.Link->Send(Line);
    if (Result == Stream::Sent::Skipped) Found->second.Link->Lose();
    return Result == Stream::Sent::Taken;
}

void Local_Line_Server::Close(std::int64_t Id) {
    const auto Found = Clients.find(Id);
    if (Found == Clients.end() || Found->second.Closing) return;
    Found->second.Closing = true;
    Found->second.Link->Lose_When_Sent();
}

} // namespace brinewright
