#include "platform_linux/com_table.hpp"

#include "platform/run_time_error.hpp"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>

namespace brinewright {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Names_In(const std::string& Folder) {
    std::vector<std::string> Names;
    std::error_code Failure;
    for (fs::directory_iterator Each(Folder, Failure), End; !Failure && Each != End;
         Each.increment(Failure)) {
        Names.push_back(Each->path().filename().string());
    }
    std::sort(Names.begin(), Names.end());
    return Names;
}

// The number in a name like ttyS12; none for other names.
std::optional<int> Number_After(std::string_view Prefix, std::string_view Name) {
    if (!Name.starts_with(Prefix)) return std::nullopt;
    const char* End = Name.data() + Name.size();
    int Number = 0;
    const auto [Rest, Failure] = std::from_chars(Name.data() + Prefix.size(), End, Number);
    if (Failure != std::errc{} || Rest != End || Number < 0) return std::nullopt;
    return Number;
}

// Names with Prefix and a number, in the order of their numbers.
std::vector<std::string> Numbered_Names(const std::vector<std::string>& Names, std::string_view Prefix) {
    std::vector<std::pair<int, std::string>> Numbered;
    for (const std::string& Name : Names) {
        if (const auto Number = Number_After(Prefix, Name)) Numbered.emplace_back(*Number, Name);
    }
    std::sort(Numbered.begin(), Numbered.end());
    std::vector<std::string> Result;
    Result.reserve(Numbered.size());
    for (auto& [Number, Name] : Numbered) Result.push_back(std::move(Name));
    return Result;
}

// The driver makes a ttyS for each port that could be there, and gives those that are not the type 0. One of
// which it says nothing may be there: opening it tells.
bool May_Have_UART(const Device_Roots& Roots, const std::string& Name) {
    std::ifstream File(Roots.Sys_TTY + "/" + Name + "/type");
    std::string Type;
    return !std::getline(File, Type) || Type != "0";
}

// The device that a path leads to, or the path itself while the device is away.
std::string Real_Device(const std::string& Path) {
    std::error_code Failure;
    const fs::path Real = fs::canonical(Path, Failure);
    return Failure ? Path : Real.string();
}

bool Leads_To_Same(const std::string& A, const std::string& B) {
    return A == B || Real_Device(A) == Real_Device(B);
}

template <class Paths>
bool Knows(const Paths& Known, const std::string& Device) {
    return std::any_of(Known.begin(), Known.end(),
                       [&](const std::string& Each) { return !Each.empty() && Leads_To_Same(Each, Device); });
}

std::string Key_Of(int Com_Number) { return "Com" + std::to_string(Com_Number); }

} // namespace

std::vector<std::string> Find_Serial_Devices(const Device_Roots& Roots) {
    std::vector<std::string> Found;
    const auto Names = Names_In(Roots.Dev);
    for (const std::string& Name : Numbered_Names(Names, "ttyS")) {
        if (May_Have_UART(Roots, Name)) Found.push_back(Roots.Dev + "/" + Name);
    }
    for (const std::string& Name : Numbered_Names(Names, "ttyAMA")) Found.push_back(Roots.Dev + "/" + Name);
    const std::string By_Id = Roots.Dev + "/serial/by-id";
    for (const std::string& Name : Names_In(By_Id))
        Found.push_back(std::string(By_Id).append("/").append(Name));
    for (const char* Prefix : {"ttyUSB", "ttyACM"}) {
        for (const std::string& Name : Numbered_Names(Names, Prefix)) {
            const std::string Path = Roots.Dev + "/" + Name;
            if (!Knows(Found, Path)) Found.push_back(Path);
        }
    }
    return Found;
}

bool Assign_Devices(Com_Table& Devices, const std::vector<std::string>& Found) {
    bool Changed = false;
    for (const std::string& Device : Found) {
        if (Knows(Devices, Device)) continue;
        const auto Free = std::find(Devices.begin(), Devices.end(), std::string());
        if (Free == Devices.end()) break;
        *Free = Device;
        Changed = true;
    }
    return Changed;
}

Com_Table Load_Com_Table(const App_Settings& Settings) {
    Com_Table Devices;
    for (int Number = 1; Number <= Com_Table::Last_Index; ++Number) {
        Devices[Number] = Settings.Get(Key_Of(Number), "");
    }
    return Devices;
}

void Save_Com_Table(const Com_Table& Devices, App_Settings& Settings) {
    for (int Number = 1; Number <= Com_Table::Last_Index; ++Number) {
        if (Settings.Get(Key_Of(Number), "") != Devices[Number])
            Settings.Set(Key_Of(Number), Devices[Number]);
    }
}

std::pair<int, std::string> Parse_Com_Option(std::string_view Text) {
    const std::size_t Equals = std::min(Text.find('='), Text.size());
    const std::string_view Device = Text.substr(std::min(Equals + 1, Text.size()));
    const auto Number = Number_After("", Text.substr(0, Equals));
    if (!Number || *Number < 1 || *Number > Com_Table::Last_Index || Device.empty()) {
        throw Run_Time_Error("\"" + std::string(Text) + "\" is not N=DEVICE with N from 1 to 16");
    }
    return {*Number, std::string(Device)};
}

} // namespace brinewright
