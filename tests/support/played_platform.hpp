#pragma once

#include "platform/run_time_error.hpp"
#include "platform/virtual_platform.hpp"

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brinewright {

// Virtual time with links whose far end the test plays: it lets clients come and go, data arrive and
// operations fail. Links are told apart by name: "COM 3", "TCP 0" (clients in the order of their coming),
// "UDP 255.255.255.255:60001", "UDP bound to 5050".
class Played_Platform : public Virtual_Platform {
  public:
    using Virtual_Platform::Virtual_Platform;

    struct Serial : Serial_Port {
        Serial(Played_Platform& Its_World, int Com_Number)
            : World(Its_World), Name("COM " + std::to_string(Com_Number)) {}
        void Open(const std::string& Settings) override {
            World.Log.push_back(Name + " open " + Settings);
            World.Fail_If_Told(Name + " open");
            Opened = true;
        }
        void Close() override {
            World.Log.push_back(Name + " close");
            Opened = false;
        }
        bool Is_Open() const override { return Opened; }
        bool Output(std::string_view Text) override {
            World.Fail_If_Told(Name + " output");
            if (!Opened) throw Run_Time_Error("Port not open");
            if (Is_Slow) return false;
            World.Sent.emplace_back(Name, Text);
            return true;
        }
        std::string Input() override {
            World.Fail_If_Told(Name + " input");
            return std::exchange(Received, {});
        }
        void Arrive(const std::string& Data) {
            Received += Data;
            On_Comm(Comm_Event::Receive);
        }

        Played_Platform& World;
        std::string Name;
        std::string Received;
        bool Opened = false;
        bool Is_Slow = false; // takes nothing more
    };

    struct Client : TCP_Connection {
        Client(Played_Platform& Its_World, std::string IP)
            : World(Its_World), Name("TCP " + std::to_string(Its_World.Clients.size())),
              Its_IP(std::move(IP)) {}
        ~Client() override { World.Log.push_back(Name + " gone"); }
        bool Send(std::string_view Text) override {
            if (!Reads) return ++Skipped, false;
            World.Sent.emplace_back(Name, Text);
            return true;
        }
        void Close() override { World.Log.push_back(Name + " close"); }
        std::string Remote_IP() const override { return Its_IP; }
        std::uint64_t Skipped_Count() const override { return Skipped; }

        Played_Platform& World;
        std::string Name;
        std::string Its_IP;
        bool Reads = true;
        std::uint64_t Skipped = 0;
    };

    struct Server : TCP_Listener {
        explicit Server(Played_Platform& Its_World) : World(Its_World) {}
        void Listen(std::int32_t Port) override {
            World.Log.push_back("listen " + std::to_string(Port));
            World.Fail_If_Told("listen");
            Listening = true;
        }
        bool Is_Listening() const override { return Listening; }
        void Close() override {
            World.Log.push_back("listen close");
            Listening = false;
        }

        Played_Platform& World;
        bool Listening = false;
    };

    struct UDP : UDP_Socket {
        explicit UDP(Played_Platform& Its_World) : World(Its_World) {}
        void Open(const std::string& Remote_Host, std::int32_t Remote_Port) override {
            Name = "UDP " + Remote_Host + ":" + std::to_string(Remote_Port);
            World.Log.push_back(Name + " open");
            World.Fail_If_Told(Name + " open");
            Opened = true;
        }
        void Bind(std::int32_t Local_Port) override {
            Name = "UDP bound to " + std::to_string(Local_Port);
            World.Log.push_back(Name);
            World.Fail_If_Told(Name);
            Opened = true;
        }
        bool Is_Open() const override { return Opened; }
        void Close() override {
            World.Log.push_back(Name + " close");
            Opened = false;
        }
        bool Send(std::string_view Text) override {
            World.Fail_If_Told(Name + " send");
            if (!Opened) throw Run_Time_Error("Socket not open");
            World.Sent.emplace_back(Name, Text);
            return true;
        }
        std::string Receive() override {
            if (Received.empty()) return {};
            std::string Oldest = std::move(Received.front());
            Received.pop_front();
            return Oldest;
        }
        void Arrive(std::string Datagram) {
            Received.push_back(std::move(Datagram));
            On_Data_Arrival();
        }

        Played_Platform& World;
        std::string Name;
        std::deque<std::string> Received;
        bool Opened = false;
    };

    std::unique_ptr<Serial_Port> Make_Serial_Port(int Com_Number) override {
        return Keep(Coms[Com_Number], std::make_unique<Serial>(*this, Com_Number));
    }
    std::unique_ptr<TCP_Listener> Make_TCP_Listener() override {
        return Keep(Listener, std::make_unique<Server>(*this));
    }
    std::unique_ptr<UDP_Socket> Make_UDP_Socket() override {
        return Keep(Sockets.emplace_back(), std::make_unique<UDP>(*this));
    }

    // Client number Clients.size() connects.
    Client& Connect(const std::string& IP = "10.0.0.7") {
        auto New = std::make_unique<Client>(*this, IP);
        Clients.push_back(New.get());
        Client& Connected = *New;
        Listener->On_Connection(std::move(New));
        return Connected;
    }

    // Texts by what fails with them: "COM 3 open", "COM 3 output", "COM 3 input", "listen",
    // "UDP 10.0.0.1:60001 open", "UDP 10.0.0.1:60001 send".
    std::map<std::string, std::string> Failures;
    std::vector<std::pair<std::string, std::string>> Sent;
    std::vector<std::string> Log; // what was opened and closed
    std::map<int, Serial*> Coms;
    Server* Listener = nullptr;
    std::vector<Client*> Clients;
    std::vector<UDP*> Sockets; // in the order of their making

  private:
    template <class T>
    static std::unique_ptr<T> Keep(T*& Seen, std::unique_ptr<T> Made) {
        Seen = Made.get();
        return Made;
    }
    void Fail_If_Told(const std::string& What) const {
        const auto Found = Failures.find(What);
        if (Found == Failures.end()) return;
        if (Found->second == "Device or resource busy") throw Device_Busy(Found->second);
        if (Found->second == "Permission denied") throw Access_Refused(Found->second);
        throw Run_Time_Error(Found->second);
    }
};

} // namespace brinewright
