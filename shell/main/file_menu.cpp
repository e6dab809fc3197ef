#include "shell/main/file_menu.hpp"

#include "links/links_at_start.hpp"
#include "links/serial_ports.hpp"
#include "links/setup_file/setup_file.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/main/setup_names.hpp"
#include "shell/state/kept_places.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <vector>

namespace brinewright {

namespace {

constexpr std::size_t Setup_Limit_Bytes = 16 * 1024 * 1024; // a thousand times what any setup holds
constexpr const char* Setup_Filter = "Brinewright setup files (*.ini)|*.ini";
constexpr const char* Setup_Extension = ".ini";
constexpr int Last_Closed_Port = 10; // ports 11 to 16 are left for Init_Comports, as required

void Show_Failure(Simulator& Sim, const std::string& Text) {
    Sim.Windows.Boxes.Show(Text, "", Box_Icon::Stop);
}

// Behind a name that has none of its own, whether a hand or automation gave it.
std::string With_Extension(const std::string& File, const std::string& Extension) {
    const std::string Name = File.substr(File.find_last_of('/') + 1);
    return Name.empty() || Name.find('.', 1) != std::string::npos ? File : File + Extension;
}

void Tell_Repaired(Simulator& Sim, const std::string& File, const std::vector<const void*>& Repaired) {
    constexpr std::size_t Named_Limit = 20;
    const auto Names = Names_Of(Sim.State, Repaired);
    if (Names.empty()) return;
    std::string Text = File + " holds values that cannot be. They were replaced by their defaults: ";
    for (std::size_t I = 0; I < std::min(Names.size(), Named_Limit); ++I) Text += (I ? ", " : "") + Names[I];
    if (Names.size() > Named_Limit) Text += " and " + std::to_string(Names.size() - Named_Limit) + " more";
    Sim.Windows.Boxes.Show(Text, "", Box_Icon::Warning);
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
    Question.Default_Extension = Setup_Extension;
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
    Settle_Setup(Sim);
}

} // namespace

std::string Setup_File_Name(const Simulator& Sim) {
    if (!Sim.Options.Setup_File.empty()) return Sim.Options.Setup_File;
    const std::int16_t Instance = Sim.State.Of<Shell_State>().Instance_Number;
    const char* Suffix = Instance == 2 ? "_2" : Instance == 3 ? "_3" : "";
    return Sim.State.Of<Shell_State>().Data_Folder + "Brinewright" + Suffix + ".ini";
}

void Load_Setup(Simulator& Sim, const std::string& File) {
    Setup_Reading Reading;
    try {
        const std::string Bytes = Sim.Services.Disk().Read(File, Setup_Limit_Bytes);
        Reading = Read_Setup(Bytes, Sim.State, Sim.Window_Table);
        if (File == Sim.Unreadable_Setup) Sim.Unreadable_Setup.clear();
        // A file of another kind changes nothing and is not told, and is not overwritten at the end either.
        if (!Reading.Known && !Bytes.empty() && File == Setup_File_Name(Sim)) Sim.Unreadable_Setup = File;
    } catch (const Run_Time_Error& Failure) {
        Show_Failure(Sim, std::string(Failure.what()) + "  Default data loaded");
        if (File == Setup_File_Name(Sim)) Sim.Unreadable_Setup = File;
        Load_Default_Data(Sim.State, Sim.Window_Table);
    }
    const auto Repaired = Repair_Values(Sim.State, Reading.Lost, Sim.Window_Table);
    Tell_Repaired(Sim, File, Repaired);
    Sim.Setup_File = File;
    Sim.Saved_Settings.clear();
    if (Reading.Known && Repaired.empty()) Sim.Saved_Settings = Settings_Text(Sim.State, Sim.Window_Table);
}

void Settle_Setup(Simulator& Sim) {
    if (!Sim.Saved_Settings.empty()) Sim.Saved_Settings = Settings_Text(Sim.State, Sim.Window_Table);
}

bool Setup_Is_Saved(Simulator& Sim) {
    return !Sim.Saved_Settings.empty() && Sim.Saved_Settings == Settings_Text(Sim.State, Sim.Window_Table);
}

bool Save_Setup(Simulator& Sim, const std::string& File) {
    try {
        Sim.Services.Disk().Replace(File, Write_Setup(Sim.State, Sim.Window_Table));
        if (File == Sim.Unreadable_Setup) Sim.Unreadable_Setup.clear(); // the user has replaced it
        Sim.Setup_File = File;
        Sim.Saved_Settings = Settings_Text(Sim.State, Sim.Window_Table);
        return true;
    } catch (const Run_Time_Error& Failure) {
        Show_Failure(Sim, "The setup could not be saved as " + File + ": " + Failure.what());
        return false;
    }
}

void Save_Setup_At_End(Simulator& Sim) {
    if (Sim.Options.No_Save) return;
    const std::string File = Setup_File_Name(Sim);
    const bool Is_Left = File == Sim.Unreadable_Setup;
    const std::string Beside = Is_Left ? File + ".recovered.ini" : File;
    Sim.Save_At_End_Failed = !Save_Setup(Sim, Beside);
    if (Is_Left && !Sim.Save_At_End_Failed)
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
    Ask_Setup_File(Sim, true, "Save Setup As", [&Sim](const std::string& Given) {
        if (Given.empty()) return;
        const std::string File = With_Extension(Given, Setup_Extension);
        Add_Open_Windows(Sim);
        const bool Saved = Save_Setup(Sim, File);
        Sim.State.Of<Shell_State>().Open_Form_Count = 0;
        if (Saved) Sim.Windows.Boxes.Show("Setup saved as " + File);
    });
}

} // namespace brinewright
