#include "platform/virtual_platform.hpp"

#include "platform/run_time_error.hpp"

namespace brinewright {

namespace {

void Require_Opening(Memory_Links& Links, const std::string& Name) {
    if (Links.Busy.contains(Name)) throw Device_Busy("Device or resource busy");
    if (Links.Refused.contains(Name)) throw Access_Refused("Permission denied");
    if (Links.Failing_Open != Name) return;
    Links.Failing_Open.clear();
    throw Run_Time_Error("Device unavailable");
}

void Keep_Sent(Memory_Links& Links, const std::string& Name, std::string_view Text) {
    if (Links.Keep) Links.Sent.emplace_back(Name, Text);
}

class Memory_Serial_Port : public Serial_Port {
  public:
    Memory_Serial_Port(Memory_Links& Its_Links, int Com_Number)
        : Links(Its_Links), Name("COM " + std::to_string(Com_Number)) {}
    void Open(const std::string&) override {
        Require_Opening(Links, Name);
        Opened = true;
    }
    void Close() override { Opened = false; }
    bool Is_Open() const override { return Opened; }
    bool Output(std::string_view Text) override {
        if (!Opened) throw Run_Time_Error("Port not open");
        Keep_Sent(Links, Name, Text);
        return true;
    }
    std::string Input() override { return {}; }

  private:
    Memory_Links& Links;
    std::string Name;
    bool Opened = false;
};

class Memory_TCP_Listener : public TCP_Listener {
  public:
    explicit Memory_TCP_Listener(Memory_Links& Its_Links) : Links(Its_Links) {}
    void Listen(std::int32_t) override {
        Require_Opening(Links, "TCP");
        Listening = true;
    }
    bool Is_Listening() const override { return Listening; }
    void Close() override { Listening = false; }

  private:
    Memory_Links& Links;
    bool Listening = false;
};

class Memory_UDP_Socket : public UDP_Socket {
  public:
    explicit Memory_UDP_Socket(Memory_Links& Its_Links) : Links(Its_Links) {}
    void Open(const std::string& Remote_Host, std::int32_t Remote_Port) override {
        Name = "UDP " + Remote_Host + ":" + std::to_string(Remote_Port);
        Require_Opening(Links, Name);
    }
    void Bind(std::int32_t Local_Port) override {
        Name = "UDP bound to " + std::to_string(Local_Port);
        Require_Opening(Links, Name);
    }
    bool Is_Open() const override { return !Name.empty(); }
    void Close() override { Name.clear(); }
    bool Send(std::string_view Text) override {
        if (Name.empty()) throw Run_Time_Error("Socket not open");
        Keep_Sent(Links, Name, Text);
        return true;
    }
    std::string Receive() override { return {}; }

  private:
    Memory_Links& Links;
    std::string Name;
};

} // namespace

std::string Memory_Files::Read(const std::string& Path, std::size_t Limit_Bytes) const {
    const auto Found = Content.find(Path);
    if (Found == Content.end()) throw Run_Time_Error(error_text::File_Not_Found);
    if (Found->second.size() > Limit_Bytes) throw Run_Time_Error("File too large");
    return Found->second;
}

std::string Memory_Settings::Get(const std::string& Key, const std::string& Default) const {
    const auto Found = Values.find(Key);
    return Found == Values.end() ? Default : Found->second;
}

std::unique_ptr<Serial_Port> Virtual_Platform::Make_Serial_Port(int Com_Number) {
    return std::make_unique<Memory_Serial_Port>(Links, Com_Number);
}
std::unique_ptr<TCP_Listener> Virtual_Platform::Make_TCP_Listener() {
    return std::make_unique<Memory_TCP_Listener>(Links);
}
std::unique_ptr<UDP_Socket> Virtual_Platform::Make_UDP_Socket() {
    return std::make_unique<Memory_UDP_Socket>(Links);
}

void Virtual_Platform::Run_Until(Timer_Queue& Queue, std::int64_t Wide_Time_us) {
    while (!Quitting) {
        const auto Due_us = Queue.Next_Due_us();
        if (!Due_us || *Due_us > Wide_Time_us) break;
        Machine_Clock.Advance_To(*Due_us);
        Queue.Fire_One();
    }
    if (!Quitting) Machine_Clock.Advance_To(Wide_Time_us);
}

} // namespace brinewright
