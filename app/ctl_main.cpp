// brinewright-ctl: one request to a running simulator from the command line, or a watch that goes on.

#include "app/default_socket.hpp"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Json = nlohmann::ordered_json;

constexpr int Failed = 1, Wrong_Usage = 2, Not_Connected = 3;

struct Ending : std::runtime_error {
    Ending(int Its_Status, const std::string& Why) : std::runtime_error(Why), Status(Its_Status) {}
    int Status;
};

// The connection; lines in, lines out.
class Peer {
  public:
    explicit Peer(const std::string& Path) : Socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un Address{};
        Address.sun_family = AF_UNIX;
        if (Path.empty() || Path.size() >= sizeof Address.sun_path)
            throw Ending(Wrong_Usage, "the path of the socket must have 1 to " +
                                          std::to_string(sizeof Address.sun_path - 1) + " bytes");
        Path.copy(Address.sun_path, Path.size());
        if (Socket < 0 || ::connect(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof Address) != 0)
            throw Ending(Not_Connected, "cannot connect to " + Path + ": " + std::strerror(errno));
    }
    ~Peer() {
        if (Socket >= 0) ::close(Socket);
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    void Send_Line(std::string Line) const {
        Line += '\n';
        for (std::size_t Sent = 0; Sent < Line.size();) {
            const ssize_t Count = ::send(Socket, Line.data() + Sent, Line.size() - Sent, MSG_NOSIGNAL);
            if (Count < 0 && errno != EINTR)
                throw Ending(Failed, std::string("sending: ") + std::strerror(errno));
            if (Count > 0) Sent += static_cast<std::size_t>(Count);
        }
    }

    Json Receive() {
        std::size_t End = 0;
        while ((End = Received.find('\n', Searched)) == std::string::npos) {
            Searched = Received.size();
            std::array<char, 65536> Chunk;
            const ssize_t Count = ::recv(Socket, Chunk.data(), Chunk.size(), 0);
            if (Count < 0 && errno == EINTR) continue;
            if (Count <= 0) throw Ending(Failed, "the simulator closed the connection");
            Received.append(Chunk.data(), static_cast<std::size_t>(Count));
        }
        Json Message = Json::parse(Received.begin(), Received.begin() + static_cast<std::ptrdiff_t>(End),
                                   nullptr, false);
        Received.erase(0, End + 1);
        Searched = 0;
        if (!Message.is_object()) throw Ending(Failed, "the simulator sent what is no answer");
        return Message;
    }

  private:
    int Socket;
    std::string Received;
    std::size_t Searched = 0; // no line end before here
};

// What stands on the command line for one parameter of a method.
enum class Take { Text, Value, Number, File };
struct Argument {
    const char* Name;
    Take As = Take::Text;
    bool Required = true;
};
struct Command {
    const char* Name;
    const char* Help;
    std::vector<Argument> Arguments;
};

const std::vector<Command>& Commands() {
    static const std::vector<Command> All{
        {"get", "Print what stands at a path", {{"path"}}},
        {"set", "Set a control as a user does", {{"path"}, {"value", Take::Value}}},
        {"click", "Click a control", {{"path"}}},
        {"type", "Type into a text box and stay in it", {{"path"}, {"text"}}},
        {"focus", "Move the focus to a control", {{"path"}}},
        {"leave", "Leave the box that has the focus", {}},
        {"key",
         "Press a key in a window: a code, Left, Up, Right or Down",
         {{"path"}, {"code", Take::Value}}},
        {"close", "Close a window", {{"path"}}},
        {"list", "List the open windows, the controls of one, or state", {{"path", Take::Text, false}}},
        {"boxes", "List the message boxes and file dialogs that stand", {}},
        {"answer",
         "Answer a box, or a file dialog with a file",
         {{"id", Take::Number}, {"path", Take::File, false}}},
        {"advance", "Let virtual time pass", {{"seconds", Take::Number}}},
        {"stats", "Print statistics", {}},
        {"grab", "Write a picture of a window to a file", {{"path"}, {"file", Take::File}}},
        {"ping", "Ask whether the simulator answers", {}},
        {"version", "Print the version", {}},
    };
    return All;
}

struct Wishes {
    std::string Socket_Path = brinewright::Default_Socket_Path();
    bool As_Json = false;
    bool Value_Is_Text = false;
    bool Right_Click = false;
    std::string Box_Button;
    std::uint64_t Count = 0;
    std::vector<std::string> Watched;
    std::vector<std::string> Given = std::vector<std::string>(2); // by place of the argument
};

Json Parameter(const Argument& Its, const std::string& Given, const Wishes& Wish) {
    if (Its.As == Take::Text || (Its.As == Take::Value && Wish.Value_Is_Text)) return Given;
    if (Its.As == Take::File) return std::filesystem::absolute(Given).string();
    Json Read = Json::parse(Given, nullptr, false);
    if (Read.is_number() || (Its.As == Take::Value && Read.is_boolean())) return Read;
    if (Its.As == Take::Number) throw Ending(Wrong_Usage, std::string(Its.Name) + " must be a number");
    return Given;
}

Json Request_Of(const Command& Its, const CLI::App& Parsed, const Wishes& Wish) {
    Json Params = Json::object();
    for (std::size_t I = 0; I < Its.Arguments.size(); ++I)
        if (Parsed.count(Its.Arguments[I].Name) > 0)
            Params[Its.Arguments[I].Name] = Parameter(Its.Arguments[I], Wish.Given[I], Wish);
    if (Wish.Right_Click) Params["button"] = "right";
    if (!Wish.Box_Button.empty())
        Params["button"] = Parameter({"button", Take::Value}, Wish.Box_Button, Wish);
    return {{"jsonrpc", "2.0"}, {"id", 1}, {"method", Its.Name}, {"params", std::move(Params)}};
}

std::string Request_Line(const Json& Request) {
    try {
        return Request.dump();
    } catch (const Json::exception&) {
        throw Ending(Wrong_Usage, "arguments must be UTF-8");
    }
}

// Texts stand plain where they are a line's only matter, and quoted where they would be taken for something
// else.
std::string Plain(const Json& Value) { return Value.is_string() ? Value.get<std::string>() : Value.dump(); }
std::string In_Row(const Json& Value) {
    if (!Value.is_string()) return Value.dump();
    const auto& Text = Value.get_ref<const std::string&>();
    const bool Simple = !Text.empty() && Text.find_first_of(" \t\r\n\"=") == std::string::npos;
    return Simple ? Text : Value.dump();
}

std::string Row(const Json& Fields) {
    std::string Line;
    for (const auto& [Name, Value] : Fields.items()) {
        if (!Line.empty()) Line += ' ';
        if (Name != "path" && Name != "id") Line += Name + "=";
        Line += In_Row(Value);
    }
    return Line;
}

void Print_Members(const std::string& Prefix, const Json& Object) {
    for (const auto& [Name, Value] : Object.items()) {
        if (Value.is_object())
            Print_Members(Prefix + Name + ".", Value);
        else
            std::cout << Prefix << Name << ' ' << Plain(Value) << '\n';
    }
}

void Print(const Json& Value, bool As_Json) {
    if (As_Json)
        std::cout << Value.dump() << '\n';
    else if (Value.is_object())
        Print_Members("", Value);
    else if (Value.is_array())
        for (const Json& Element : Value)
            std::cout << (Element.is_object() ? Row(Element) : Plain(Element)) << '\n';
    else
        std::cout << Plain(Value) << '\n';
}

// Changes that come in between are handed to Changed.
template <class F>
Json Ask(Peer& Simulator, const Json& Request, F&& Changed) {
    Simulator.Send_Line(Request_Line(Request));
    for (;;) {
        const Json Answer = Simulator.Receive();
        if (Answer.contains("method")) {
            Changed(Answer);
            continue;
        }
        if (const auto Error = Answer.find("error"); Error != Answer.end())
            throw Ending(Failed, Plain(Error->value("message", Json("the simulator refused"))));
        return Answer.value("result", Json());
    }
}

void Watch(Peer& Simulator, const Wishes& Wish) {
    const auto Tell = [&](const Json& Path, const Json& Value) {
        if (Wish.As_Json)
            std::cout << Json{{"path", Path}, {"value", Value}}.dump() << std::endl;
        else
            std::cout << Plain(Path) << ' ' << Plain(Value) << std::endl;
    };
    std::uint64_t Changes = 0;
    const auto Tell_Change = [&](const Json& Change) {
        const Json Params = Change.value("params", Json::object());
        Tell(Params.value("path", Json()), Params.value("value", Json()));
        ++Changes;
    };
    for (const std::string& Path : Wish.Watched) {
        const Json Request{{"jsonrpc", "2.0"}, {"id", 1}, {"method", "watch"}, {"params", {{"path", Path}}}};
        Tell(Path, Ask(Simulator, Request, Tell_Change));
    }
    while (std::cout && (Wish.Count == 0 || Changes < Wish.Count)) Tell_Change(Simulator.Receive());
}

void Declare(CLI::App& Program, Wishes& Wish) {
    Program.add_option("--socket", Wish.Socket_Path, "Local socket of the simulator")->capture_default_str();
    Program.add_flag("--json", Wish.As_Json, "Print JSON");
    Program.require_subcommand(1);
    Program.fallthrough();
    for (const Command& Its : Commands()) {
        CLI::App* Parser = Program.add_subcommand(Its.Name, Its.Help);
        for (std::size_t I = 0; I < Its.Arguments.size(); ++I)
            Parser->add_option(Its.Arguments[I].Name, Wish.Given[I])->required(Its.Arguments[I].Required);
    }
    Program.get_subcommand("set")->add_flag("--text", Wish.Value_Is_Text,
                                            "The value is a text, even 12 or true");
    Program.get_subcommand("click")->add_flag("--right", Wish.Right_Click, "Click with the right button");
    Program.get_subcommand("answer")
        ->add_option("--button", Wish.Box_Button,
                     "Caption of the button to press, or its number from 0 (default: the first)");
    CLI::App* Watching = Program.add_subcommand("watch", "Print each change until interrupted");
    Watching->add_option("path", Wish.Watched)->required();
    Watching->add_option("--count", Wish.Count, "End after so many changes");
}

int Run(int Count, char** Arguments) {
    CLI::App Program{"Operates a running Brinewright simulator", "brinewright-ctl"};
    Wishes Wish;
    Declare(Program, Wish);
    try {
        Program.parse(Count, Arguments);
    } catch (const CLI::ParseError& Failure) {
        return Program.exit(Failure) == 0 ? 0 : Wrong_Usage;
    }
    Json Request;
    for (const Command& Its : Commands())
        if (const CLI::App* Parsed = Program.get_subcommand(Its.Name); Parsed->parsed())
            Request = Request_Of(Its, *Parsed, Wish);
    Peer Simulator(Wish.Socket_Path);
    if (Request.is_null()) {
        Watch(Simulator, Wish);
        return 0;
    }
    const Json Result = Ask(Simulator, Request, [](const Json&) {});
    if (Result != true || Wish.As_Json || Request["method"] == "get") Print(Result, Wish.As_Json);
    return 0;
}

} // namespace

int main(int Count, char** Arguments) {
    try {
        return Run(Count, Arguments);
    } catch (const Ending& End) {
        std::cerr << "brinewright-ctl: " << End.what() << '\n';
        return End.Status;
    } catch (const std::exception& Failure) {
        std::cerr << "brinewright-ctl: " << Failure.what() << '\n';
        return Failed;
    }
}
