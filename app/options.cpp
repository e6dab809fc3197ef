#include "app/options.hpp"

#include "platform/clock.hpp"
#include "platform/run_time_error.hpp"
#include "platform_linux/com_table.hpp"
#include "platform_qt/ini_settings.hpp"
#include "shell/state/version.hpp"
#include "shell/transmit/record_format.hpp"

#include <CLI/CLI.hpp>

#include <charconv>
#include <cmath>
#include <iostream>

namespace brinewright {

namespace {

constexpr double Longest_Duration_s = 1e9;

// "2026-01-01", then optionally "T12:30:00" and a fraction of up to six digits.
std::optional<std::int64_t> Parse_Start_Time(std::string Text) {
    constexpr std::string_view Complete = "0000-01-01T00:00:00.000000";
    if (!Text.empty() && Text.back() == 'Z') Text.pop_back();
    if (Text.size() > 10 && Text[10] == ' ') Text[10] = 'T';
    if (Text.size() != 10 && Text.size() != 16 && Text.size() != 19 && (Text.size() < 21 || Text.size() > 26))
        return std::nullopt;
    Text += Complete.substr(Text.size());
    const auto Record = Parse_Record(Text + " 0 ");
    if (!Record || Record->Local_us < 0) return std::nullopt;
    return Record->Local_us;
}

// Not by the parser, which takes a minus sign for wrapping round.
std::uint64_t Parse_Seed(const std::string& Text) {
    std::uint64_t Seed = 0;
    const char* const End = Text.data() + Text.size();
    const auto [Stopped, Failure] = std::from_chars(Text.data(), End, Seed);
    if (Failure != std::errc() || Stopped != End)
        throw Run_Time_Error("--seed: a whole number from 0 to 18446744073709551615 is wanted");
    return Seed;
}

struct Raw_Options {
    std::vector<std::string> Com;
    std::string Start_Time;
    int Instance = 1;
    std::string Seed;
    double Duration_s = 0;
    bool Headless = false;
};

void Declare_Inputs_And_Outputs(CLI::App& App, Program_Options& Chosen, Raw_Options& Raw) {
    App.add_option("--setup", Chosen.Setup_File,
                   "Setup file that takes the place of the instance's own, for the start and for saving")
        ->type_name("FILE");
    App.add_flag("--no-save", Chosen.No_Save, "Leave the setup file as it is at the end");
    App.add_option("--data-folder", Chosen.Data_Folder,
                   "Folder of the setup and of Routes (default: Tidewerk/Brinewright in the user's data "
                   "folder); when "
                   "given, the application settings live there too")
        ->type_name("DIR");
    App.add_option("--instance", Raw.Instance, "Which running copy this is: names the setup file (default 1)")
        ->check(CLI::Range(1, 3))
        ->type_name("1|2|3");
    App.add_option("--com", Raw.Com, "Device behind serial port COM N (1 to 16) for this run; repeatable")
        ->type_name("N=DEVICE")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    App.add_flag("--stdout", Chosen.To_Stdout, "Write each sentence to stdout as it leaves");
    App.add_option("--record", Chosen.Record_File, "Record each sentence: time, port number, bytes")
        ->type_name("FILE");
    App.add_option("--script", Chosen.Script_File, "Play automation lines at given times")->type_name("FILE");
    App.add_option("--joystick-script", Chosen.Joystick_Script_File,
                   "Play a game controller: lines \"SECONDS X Y BUTTONS\" (X and Y 0 to 65535), or \"SECONDS "
                   "gone\"")
        ->type_name("FILE");
    App.add_flag("--control-input", Chosen.Control_Input,
                 "Let VTG and ROT datagrams steer the ship in Ship mode, on the UDP port that "
                 "Quillon_UDP_port.txt in the data folder names");
    App.add_option("--automation", Chosen.Automation_Socket, "Local socket to drive the program by")
        ->type_name("PATH");
    App.add_flag(
        "--hold-boxes", Chosen.Hold_Boxes,
        "Message boxes stand until they are answered by automation (no sentence leaves meanwhile); without "
        "it they are printed and answered at once");
}

void Declare_Run(CLI::App& App, Program_Options& Chosen, Raw_Options& Raw) {
    App.add_option("--seed", Raw.Seed,
                   "Seed of the random draws (default: 0 in virtual time, else another each time)")
        ->type_name("N");
    App.add_option("--duration", Raw.Duration_s, "End after that many seconds")->type_name("S");
    App.add_flag(
        "--virtual", Chosen.Virtual,
        "Run in virtual time, without waiting and without touching a real link; needs --duration, --script "
        "or --automation");
    App.add_option("--start-time", Raw.Start_Time,
                   "Local date and time at which virtual time starts (default: now)")
        ->type_name("ISO");
    App.add_flag("--headless", Raw.Headless,
                 "Run without windows (tools/run then takes brinewright-headless, which always does)");
}

void Check(const CLI::App& App, Program_Options& Chosen, const Raw_Options& Raw) {
    for (const std::string& Text : Raw.Com)
        Chosen.Com_Devices.insert_or_assign(Parse_Com_Option(Text).first, Parse_Com_Option(Text).second);
    Chosen.Instance_Number = static_cast<std::int16_t>(Raw.Instance == 1 ? 0 : Raw.Instance);
    if (App.count("--seed") > 0) Chosen.Seed = Parse_Seed(Raw.Seed);
    if (App.count("--duration") > 0) {
        if (!(Raw.Duration_s > 0 && Raw.Duration_s <= Longest_Duration_s))
            throw Run_Time_Error("--duration: a number of seconds above 0 and up to 1000000000 is wanted");
        Chosen.Duration_s = Raw.Duration_s;
    }
    if (App.count("--start-time") > 0) {
        Chosen.Start_Local_us = Parse_Start_Time(Raw.Start_Time);
        if (!Chosen.Start_Local_us)
            throw Run_Time_Error("--start-time: a time like 2026-01-01T00:00:00, from 1970 on, is wanted");
        if (!Chosen.Virtual) throw Run_Time_Error("--start-time goes with --virtual");
    }
    if (Chosen.Virtual && !Chosen.Duration_s && Chosen.Script_File.empty() &&
        Chosen.Automation_Socket.empty())
        throw Run_Time_Error("--virtual needs --duration, --script or --automation");
    for (const char* Named :
         {"--setup", "--data-folder", "--record", "--script", "--joystick-script", "--automation"})
        if (App.count(Named) > 0 && App[Named]->as<std::string>().empty())
            throw Run_Time_Error(std::string(Named) + ": a name is wanted");
    Chosen.Own_Data_Folder = App.count("--data-folder") > 0;
    if (!Chosen.Own_Data_Folder) Chosen.Data_Folder = Default_Data_Folder();
    if (Chosen.Data_Folder.back() != '/') Chosen.Data_Folder += '/';
}

// What the parser says takes several lines for some mistakes; one is enough.
std::string First_Line(const std::string& Text) { return Text.substr(0, Text.find('\n')); }

} // namespace

std::optional<Program_Options> Read_Options(int Argument_Count, char** Arguments, const char* Program_Name,
                                            int& Exit_Status) {
    CLI::App App{
        "Simulates the sensors of a ship's bridge: sends their IEC 61162-1 sentences over serial ports, a "
        "TCP server and UDP links.",
        Program_Name};
    Program_Options Chosen;
    Raw_Options Raw;
    Declare_Inputs_And_Outputs(App, Chosen, Raw);
    Declare_Run(App, Chosen, Raw);
    App.set_version_flag("--version", std::string("Brinewright ") + Version_Text, "Tell the version and end");
    try {
        App.parse(Argument_Count, Arguments);
        Check(App, Chosen, Raw);
        return Chosen;
    } catch (const CLI::CallForHelp&) {
        std::cout << App.help();
        Exit_Status = 0;
    } catch (const CLI::CallForVersion& Version) {
        std::cout << Version.what() << '\n';
        Exit_Status = 0;
    } catch (const std::exception& Wrong) {
        std::cerr << Program_Name << ": " << First_Line(Wrong.what()) << " (see --help)\n";
        Exit_Status = 2;
    }
    return std::nullopt;
}

} // namespace brinewright
