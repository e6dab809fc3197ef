#include "shell/main/file_menu.hpp"

#include "links/links_at_start.hpp"
#include "links/serial_ports.hpp"
#include "links/setup_file/setup_file.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/state/kept_places.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

namespace brinewright {

namespace {

constexpr std::size_t Setup_Limit_Bytes = 16 * 1024 * 1024; // a thousand times what any setup holds
constexpr const char* Setup_Filter = "Brinewright setup files (*.ini)|*.ini";
constexpr int Last_Closed_Port = 10; // ports 11 to 16 are left for Init_Comports, as required

void Show_Failure(Simulator& Sim, const std::string& Text) {
    Sim.Windows.Boxes.Show(Text, "", Box_Icon::Stop);
}

// Both save commands add the ship window and the open sensor windows to the list. Save leaves the count as it
// stands, on purpose: that many saves in one run end in a subscript failure is known.
void Add_Open_Windows(Simulator& Sim) {
    for (std::int16_t Index = form_index::Ship; Index <= form_index::Last; ++Index)
        if (const Form* Window = Open_Form_Of_Index(Sim, Index)) Keep_Place(Sim, *Window);
}

void Ask_Setup_File(Simulator& Sim, bool Save, const char* Title,
                    std::function<void(const std::string&)> Answer) {
    File_Dialog Question;
    Question.Save = Save;
    Question.Title = Title;
    Question.Filter = Setup_Filter;
    Question.Default_Extension = ".ini";
    Question.Folder = Sim.State.Of<Shell_State>().Data_Folder;
    Question.Answer = std::move(Answer);
    Sim.Windows.Ask_File(std::move(Question));
}

// Events of their own: keeping the places fails when the list of them is full, which is told.
void Unload_Kept_Windows(Simulator& Sim) {
    for (std::int16_t Index = form_index::Ship; Index <= form_index::Last; ++Index)
        if (Form* Window = Open_Form_Of_Index(Sim, Index))
            Sim.Windows.Event([&] { Sim.Windows.Unload(*Window); });
}

void Open_Existing_Setup(Simulator& Sim, const std::string& File) {
    for (int Port = 1; Port <= Last_Closed_Port; ++Port) Close_Comport(Sim, Port);
    Unload_Kept_Windows(Sim);
    Load_Setup(Sim, File);
    Repair_Talkers(Sim.State);
    Open_Links_Of_Setup(Sim);
    Sim.Told.Switched.Tell();
    for (int I = 1; I <= Sim.State.Of<Shell_State>().Open_Form_Count; ++I) {
        const std::int16_t Index = Sim.State.Of<Shell_State>().Open_Form_List[I].Index;
        Sim.Windows.Event([&] { Open_Window_Of_Index(Sim, Index); });
    }
    Sim.State.Of<Shell_State>().Open_Form_Count = 0;
}

} // namespace

std::string Setup_File_Name(const Simulator& Sim) {
    if (!Sim.Options.Setup_File.empty()) return Sim.Options.Setup_File;
    const std::int16_t Instance = Sim.State.Of<Shell_State>().Instance_Number;
    const char* Suffix = Instance == 2 ? "_2" : Instance == 3 ? "_3" : "";
    return Sim.State.Of<Shell_State>().Data_Folder + "Brinewright" + Suffix + ".ini";
}

void Load_Setup(Simulator& Sim, const std::string& File) {
    try {
        const std::string Bytes = Sim.Services.Disk().Read(File, Setup_Limit_Bytes);
        const bool Known = Read_Setup(Bytes, Sim.State, Sim.Window_Table);
        if (File == Sim.Unreadable_Setup) Sim.Unreadable_Setup.clear();
        // A file of another kind changes nothing and is not told, and is not overwritten at the end either.
        if (!Known && !Bytes.empty() && File == Setup_File_Name(Sim)) Sim.Unreadable_Setup = File;
    } catch (const Run_Time_Error& Failure) {
        Show_Failure(Sim, std::string(Failure.what()) + "  Default data loaded");
        if (File == Setup_File_Name(Sim)) Sim.Unreadable_Setup = File;
        Load_Default_Data(Sim.State, Sim.Window_Table);
    }
}

bool Save_Setup(Simulator& Sim, const std::string& File) {
    try {
        Sim.Services.Disk().Replace(File, Write_Setup(Sim.State, Sim.Window_Table));
        if (File == Sim.Unreadable_Setup) Sim.Unreadable_Setup.clear(); // the user has replaced it
        return true;
    } catch (const Run_Time_Error& Failure) {
        Show_Failure(Sim, Failure.what());
        return false;
    }
}

void Save_Setup_At_End(Simulator& Sim) {
    if (Sim.Options.No_Save) return;
    const std::string File = Setup_File_Name(Sim);
    if (File != Sim.Unreadable_Setup) {
        Save_Setup(Sim, File);
        return;
    }
    const std::string Beside = File + ".recovered.ini";
    if (Save_Setup(Sim, Beside))
        Sim.Windows.Boxes.Show("The setup file " + File + " could not be read and was left as it is. " +
                               "This session's setup was saved as " + Beside);
}

void Open_Setup(Simulator& Sim, const std::string& File) {
    if (File.empty()) return;
    if (Sim.Services.Disk().Exists(File))
        Open_Existing_Setup(Sim, File);
    else
        Sim.Windows.Boxes.Show("File " + File + " do not exist.");
}

void mnuFileOpen_Click(Simulator& Sim) {
    Ask_Setup_File(Sim, false, "Open Setup File", [&Sim](const std::string& File) { Open_Setup(Sim, File); });
}

void mnuFileSave_Click(Simulator& Sim) {
    Add_Open_Windows(Sim);
    const std::string File = Setup_File_Name(Sim);
    if (!Save_Setup(Sim, File)) return;
    Sim.Windows.Boxes.Show("Setup saved as " + File);
}

void mnuFileSaveAs_Click(Simulator& Sim) {
    Ask_Setup_File(Sim, true, "Save Setup As", [&Sim](const std::string& File) {
        if (File.empty()) return;
        Add_Open_Windows(Sim);
        const bool Saved = Save_Setup(Sim, File);
        Sim.State.Of<Shell_State>().Open_Form_Count = 0;
        if (Saved) Sim.Windows.Boxes.Show("Setup saved as " + File);
    });
}

} // namespace brinewright
