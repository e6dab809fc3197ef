#include "app/program.hpp"

#include "app/automation_server.hpp"
#include "app/sentence_sinks.hpp"
#include "app/summary.hpp"
#include "automation/script.hpp"
#include "platform/scripted_joystick.hpp"
#include "platform/virtual_platform.hpp"
#include "platform_qt/ini_settings.hpp"
#include "platform_qt/qt_platform.hpp"
#include "platform_qt/termination_signals.hpp"
#include "platform_qt/wake_up.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/state/version.hpp"

#include <QCoreApplication>

#include <iostream>
#include <vector>

namespace brinewright {

namespace {

// Virtual time under the event loop, which is there for automation and windows only.
class Virtual_Program_Platform final : public Virtual_Platform {
  public:
    using Virtual_Platform::Virtual_Platform;
    void Quit() override {
        Quitting = true;
        QCoreApplication::exit(); // quit() would ask each open dialog first, and they do not close by
                                  // themselves
    }
};

// The front end closes whenever its simulator is about to go, by whatever way.
struct Opened_Front {
    const Front_End& Front;
    Opened_Front(const Front_End& Its_Front, Simulator& Sim) : Front(Its_Front) {
        if (Front.Open) Front.Open(Sim);
    }
    ~Opened_Front() {
        if (Front.Close) Front.Close();
    }
    Opened_Front(const Opened_Front&) = delete;
    Opened_Front& operator=(const Opened_Front&) = delete;
};

void Print_Box(const Message_Box& Box) {
    std::cerr << "[box " << Box.Id << "] " << (Box.Title.empty() ? "" : Box.Title + ": ") << Box.Text
              << std::endl;
}

// What was told at the very end, when the windows had gone.
void Print_Left_Boxes(const Simulator& Sim, const Front_End& Front) {
    if (!Front.Shows_Boxes) return;
    for (const Message_Box& Box : Sim.Windows.Boxes.Standing) Print_Box(Box);
}

Start_Options Start_Options_Of(const Program_Options& Chosen) {
    return {Chosen.Setup_File, Chosen.No_Save, Chosen.Data_Folder, Chosen.Instance_Number,
            Chosen.Control_Input};
}

std::string Settings_File_Of(const Program_Options& Chosen) {
    return Chosen.Own_Data_Folder ? Settings_File_In(Chosen.Data_Folder) : Default_Settings_File();
}

// Where no desktop shows it: what the program says is printed, and so is a box, which is answered at once
// unless it is to be held.
void Tell_Boxes(Simulator& Sim, bool Hold) {
    Sim.Told.Said.Add(&Sim, [](const std::string& Text) { std::cerr << Text << std::endl; });
    Sim.Windows.Boxes.On_Show = [&Sim, Hold](const Message_Box& Box) {
        Print_Box(Box);
        if (!Hold) Sim.Windows.Boxes.Answer(Box.Id);
    };
}

void End_Program(Simulator& Sim) {
    if (!Sim.Ended) Sim.Windows.Event([&Sim] { Sim.Windows.Unload(*Sim.Main); });
}

// What Read makes of the text of a file; whatever is wrong with it names the file.
template <class Reader>
auto Read_Script_File(const std::string& File, Reader&& Read) {
    constexpr std::size_t Script_Limit_Bytes = 64 * 1024 * 1024;
    try {
        return Read(Disk_Files().Read(File, Script_Limit_Bytes));
    } catch (const Run_Time_Error& Failure) {
        throw Run_Time_Error(File + ": " + Failure.what());
    }
}

std::vector<Script_Line> Load_Script(const std::string& File) {
    return Read_Script_File(File, [](const std::string& Text) {
        std::vector<Script_Line> Lines;
        const std::string Wrong = Read_Script(Text, Lines);
        if (!Wrong.empty()) throw Run_Time_Error(Wrong);
        return Lines;
    });
}

// The script, when there is one, takes the place of the game controller that the platform has.
void Choose_Joystick(const Program_Options& Chosen, Clock& Time, std::unique_ptr<Joystick>& Stick) {
    if (Chosen.Joystick_Script_File.empty()) return;
    Stick = std::make_unique<Scripted_Joystick>(
        Read_Script_File(Chosen.Joystick_Script_File, Read_Joystick_Script), Time);
}

// What runs beside the simulator, in both kinds of time. It goes before the simulator does.
class Attachments {
  public:
    Attachments(Simulator& Sim, const Program_Options& Chosen, const Automation_Hooks& Its_Hooks)
        : Timers(Sim.Timers), Hooks(Its_Hooks) {
        using Form = Sentence_Sink::Form;
        const bool At_Once = !Chosen.Virtual;
        if (!Chosen.Script_File.empty()) Script_Lines = Load_Script(Chosen.Script_File);
        if (Chosen.To_Stdout) Sinks.push_back(std::make_unique<Sentence_Sink>(Sim, "", Form::Plain, At_Once));
        if (!Chosen.Record_File.empty())
            Sinks.push_back(std::make_unique<Sentence_Sink>(Sim, Chosen.Record_File, Form::Record, At_Once));
        if (!Chosen.Automation_Socket.empty())
            Automation = std::make_unique<Automation_Server>(Chosen.Automation_Socket, Sim, Hooks);
        if (Chosen.Duration_s) {
            End.Tick = [&Sim] { End_Program(Sim); };
            Timers.Start(End, static_cast<std::int64_t>(*Chosen.Duration_s * 1e6));
        }
    }
    ~Attachments() { Timers.Stop(End); }
    Attachments(const Attachments&) = delete;
    Attachments& operator=(const Attachments&) = delete;

    // The windows of the setup are open: automation is answered, and the times of the script count from here.
    void Begin(Simulator& Sim) {
        if (Automation) Automation->Begin();
        if (Script_Lines.empty()) return;
        Script = std::make_unique<Script_Player>(Target_Of(Sim), Hooks, std::move(Script_Lines));
        Script->On_Error = [](int Line_Number, const std::string& Response) {
            std::cerr << "script line " << Line_Number << ": " << Response << std::endl;
        };
    }

    bool Script_Is_Done() const { return !Script || Script->Is_Done(); }
    int Exit_Status() const { return Script && Script->Error_Count > 0 ? 1 : 0; }

  private:
    Timer_Queue& Timers;
    Automation_Hooks Hooks;
    std::vector<Script_Line> Script_Lines;
    std::vector<std::unique_ptr<Sentence_Sink>> Sinks;
    std::unique_ptr<Automation_Server> Automation;
    std::unique_ptr<Script_Player> Script;
    Timer_Queue::Entry End;
};

Automation_Hooks Hooks_At(Clock& Machine_Clock, const Front_End& Front) {
    Automation_Hooks Hooks;
    Hooks.Started_us = Machine_Clock.Wide_us();
    Hooks.Version = Version_Text;
    Hooks.Grab = Front.Grab;
    return Hooks;
}

int Run_In_Virtual_Time(const Program_Options& Chosen, const Front_End& Front) {
    Disk_Files Disk;
    Ini_Settings Settings(Settings_File_Of(Chosen));
    Virtual_Program_Platform World(Disk, Settings,
                                   Chosen.Start_Local_us.value_or(Machine_Clock().Local_us()));
    World.Random.Seed(Chosen.Seed.value_or(0));
    Choose_Joystick(Chosen, World.Time(), World.Its_Joystick);
    const auto Whole = Make_Simulator(World, Start_Options_Of(Chosen));
    Simulator& Sim = *Whole;
    if (!Front.Shows_Boxes) Tell_Boxes(Sim, Chosen.Hold_Boxes);
    Opened_Front Windows(Front, Sim);
    Automation_Hooks Hooks = Hooks_At(World.Time(), Front);
    Hooks.Advance = [&](double Seconds) {
        World.Run_Until(Sim.Timers, World.Time().Wide_us() + static_cast<std::int64_t>(Seconds * 1e6));
    };
    Attachments Beside(Sim, Chosen, Hooks);
    Sim.Windows.Event([&] { MDIForm_Load(Sim); });
    if (Front.Ready) Front.Ready(Sim);
    Beside.Begin(Sim);
    if (!Chosen.Automation_Socket.empty() || Front.Shows_Boxes) {
        std::cerr << Summary(Sim) << "Virtual time stands; automation lets it pass." << std::endl;
        Termination_Signals Signals([&Sim] { End_Program(Sim); });
        if (!World.Quitting) QCoreApplication::exec();
    } else if (Chosen.Duration_s) {
        World.Run_Until(Sim.Timers, static_cast<std::int64_t>(*Chosen.Duration_s * 1e6));
    } else {
        while (!World.Quitting && !Beside.Script_Is_Done() && Sim.Timers.Next_Due_us())
            World.Run_Until(Sim.Timers, *Sim.Timers.Next_Due_us());
    }
    End_Program(Sim);
    return Beside.Exit_Status();
}

int Run_In_Real_Time(const Program_Options& Chosen, const Front_End& Front) {
    Qt_Platform_Options World_Options;
    World_Options.Settings_File = Settings_File_Of(Chosen);
    World_Options.Com_Devices = Chosen.Com_Devices;
    World_Options.Seed = Chosen.Seed;
    Qt_Platform World(World_Options);
    Choose_Joystick(Chosen, World.Time(), World.Its_Joystick);
    const auto Whole = Make_Simulator(World, Start_Options_Of(Chosen));
    Simulator& Sim = *Whole;
    if (!Front.Shows_Boxes) Tell_Boxes(Sim, Chosen.Hold_Boxes);
    Opened_Front Windows(Front, Sim);
    Termination_Signals Signals([&Sim] { End_Program(Sim); });
    Attachments Beside(Sim, Chosen, Hooks_At(World.Time(), Front));
    Wake_Up Alarm(Sim.Timers);
    Sim.Windows.Event([&] { MDIForm_Load(Sim); });
    if (Front.Ready) Front.Ready(Sim);
    Beside.Begin(Sim);
    std::cerr << Summary(Sim) << "Running. End with Ctrl-C." << std::endl;
    if (!Sim.Ended) QCoreApplication::exec();
    Print_Left_Boxes(Sim, Front);
    return Beside.Exit_Status();
}

} // namespace

int Run_Program(const Program_Options& Chosen, const Front_End& Front) {
    return Chosen.Virtual ? Run_In_Virtual_Time(Chosen, Front) : Run_In_Real_Time(Chosen, Front);
}

int Run_Main(int Argument_Count, char** Arguments, const char* Program_Name,
             const std::function<int(const Program_Options&)>& Run) {
    Hold_Back_Termination();
    int Exit_Status = 0;
    const auto Chosen = Read_Options(Argument_Count, Arguments, Program_Name, Exit_Status);
    if (!Chosen) return Exit_Status;
    try {
        return Run(*Chosen);
    } catch (const std::exception& Failure) {
        std::cerr << Program_Name << ": " << Failure.what() << std::endl;
        return 2;
    }
}

} // namespace brinewright
