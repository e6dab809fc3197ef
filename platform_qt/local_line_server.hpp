#pragma once

#include "platform_qt/acceptor.hpp"
#include "platform_qt/stream.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace brinewright {

// A local socket for texts of one line each, which only the user who runs the program may open. Callbacks
// come from the event loop, one line for each turn; they may send and close, but not destroy the server.
class Local_Line_Server {
  public:
    static constexpr std::size_t Line_Limit_Bytes = 1024 * 1024;
    static constexpr std::size_t Waiting_Limit_Bytes = 8 * 1024 * 1024;

    // A socket file that a dead process has left is replaced; one that is listened to is not, nor is any
    // other file. Throws Run_Time_Error.
    explicit Local_Line_Server(const std::string& Path);
    ~Local_Line_Server(); // removes the socket file
    Local_Line_Server(const Local_Line_Server&) = delete;
    Local_Line_Server& operator=(const Local_Line_Server&) = delete;

    std::function<void(std::int64_t Id)> On_Open; // ids count from 1 and are not used again
    std::function<void(std::int64_t Id, const std::string& Line)> On_Line; // without its line feed
    // The client sent more than Line_Limit_Bytes without a line feed. Whatever is sent in the callback is the
    // last that it gets: after it the connection is closed.
    std::function<void(std::int64_t Id)> On_Overlong;
    std::function<void(std::int64_t Id)> On_Close; // once for each On_Open, whoever closed

    void Set_Accepting(bool On) { Listening->Set_Accepting(On); } // who comes meanwhile waits

    // Appends the line feed. False: no such client, or it was just cut for letting too much wait.
    bool Send_Line(std::int64_t Id, std::string_view Text);
    void Close(std::int64_t Id); // after what waits has been sent

  private:
    struct Client {
        std::unique_ptr<Stream> Link;
        std::string Received;
        std::size_t Start = 0;    // of what has not been delivered yet
        std::size_t Searched = 0; // no line feed before here
        bool Input_Ended = false;
        bool Closing = false;
    };

    void Take_Client(Unique_Fd Socket);
    void Read(std::int64_t Id);
    void Deliver_One(std::int64_t Id);
    void Await_More(std::int64_t Id, Client& From);
    void Refuse_Overlong(std::int64_t Id);

    std::string Socket_Path;
    std::uint64_t Device = 0, Node = 0; // of the socket file, to remove no other
    std::map<std::int64_t, Client> Clients;
    std::int64_t Last_Id = 0;
    std::unique_ptr<Acceptor> Listening;
    Later_Calls Later;
};

} // namespace brinewright
