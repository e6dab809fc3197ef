#include "shell/monitors/traffic/frm_traffic.hpp"

#include "links/port_list.hpp"
#include "sentences/checksum_verdict.hpp"
#include "sentences/sentence_clock.hpp"
#include "sentences/take_apart.hpp"
#include "sentences/wire_text.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"
#include "shell/transmit/record_format.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {

enum Column { Time_Column, Port_Column, Type_Column, Length_Column, Checksum_Column };

constexpr const char* Running = "Pause";
constexpr const char* Paused = "Continue";

std::string Clock_Text(std::int64_t Local_us) {
    std::string Text = Format_Dot(Split_Time(Local_us), "hh:nn:ss") + ".";
    const std::int64_t Fraction_ms = (Local_us % us_Per_Second + us_Per_Second) % us_Per_Second / 1000;
    const std::string Digits = std::to_string(Fraction_ms);
    return Text.append(3 - Digits.size(), '0') + Digits;
}

// Control characters, as the NUL of the UdPbC header, become blanks.
std::string Printable(std::string_view Text) {
    std::string Shown(Text);
    std::replace_if(
        Shown.begin(), Shown.end(), [](char C) { return static_cast<unsigned char>(C) < ' '; }, ' ');
    return Shown;
}

Ink Verdict_Ink(Checksum_Verdict Verdict) {
    switch (Verdict) {
    case Checksum_Verdict::Ok: return Ink::Green;
    case Checksum_Verdict::Wrong: return Ink::Red;
    case Checksum_Verdict::None: break;
    }
    return Ink::Normal;
}

const Traffic_Record& Record_At(const frmTraffic& F, int Row) {
    return Record_Of(F.Log, F.Log.Shown[static_cast<std::size_t>(Row)]);
}

Grid::Cell Traffic_Cell(Simulator& Sim, const frmTraffic& F, int Row, int Column) {
    const Traffic_Record& R = Record_At(F, Row);
    switch (Column) {
    case Time_Column: return {Clock_Text(R.Local_us)};
    case Port_Column: return {Link_Name(Sim, R.Port)};
    case Type_Column: return {F.Log.Types[R.Type]};
    case Length_Column: return {std::to_string(R.Length_bytes)};
    case Checksum_Column: {
        const Checksum_Verdict Verdict = Verdict_Of(R.Text);
        return {Verdict_Text(Verdict), Verdict_Ink(Verdict)};
    }
    default: return {Printable(Without_Line_End(R.Text))};
    }
}

int Chosen_Row(const frmTraffic& F) {
    if (!F.Chosen) return -1;
    const auto Found = std::lower_bound(F.Log.Shown.begin(), F.Log.Shown.end(), *F.Chosen);
    if (Found == F.Log.Shown.end() || *Found != *F.Chosen) return -1;
    return static_cast<int>(Found - F.Log.Shown.begin());
}

void Show_Log(frmTraffic& F) {
    // The fields of a sentence that has gone stay to be read; only its row is chosen no more.
    if (F.Chosen && *F.Chosen < F.Log.Oldest) F.Chosen.reset();
    F.hfgTraffic.Source_Moved(static_cast<int>(F.Log.Shown.size()), Chosen_Row(F));
    std::string Text = std::to_string(F.Log.Shown.size()) + " of " +
                       std::to_string(F.Log.Next - F.Log.Oldest) + " sentences";
    if (F.Passed_By != 0) Text += ", " + std::to_string(F.Passed_By) + " passed by while paused";
    F.lblCount.Caption = std::move(Text);
}

void Show_Types(frmTraffic& F) {
    for (std::size_t I = F.cmbType.Items().size(); I < F.Log.Types.size(); ++I)
        F.cmbType.Add_Item(F.Log.Types[I]);
}

void Add_Port(Simulator& Sim, frmTraffic& F, int Port) {
    const auto& Items = F.cmbPort.Items();
    if (std::none_of(Items.begin(), Items.end(), [Port](const Combo_Box::Item& I) { return I.Data == Port; }))
        F.cmbPort.Add_Item(Link_Name(Sim, Port), Port);
}

// Names the links anew after a change of the ports and adds those in use.
void Rebuild_Port_List(Simulator& Sim, frmTraffic& F) {
    for (int I = 1; I < static_cast<int>(F.cmbPort.Items().size()); ++I)
        F.cmbPort.Set_Item(I, Link_Name(Sim, F.cmbPort.Items()[static_cast<std::size_t>(I)].Data));
    for (int Port = 1; Port <= port_number::Last; ++Port)
        if (Link_In_Use(Sim, Port)) Add_Port(Sim, F, Port);
}

void Take_Sentence(Simulator& Sim, frmTraffic& F, const Sent_Sentence& Sent) {
    if (!Sent.Link_Took_It) return;
    if (*F.cmdPause.Caption == Paused) {
        ++F.Passed_By;
    } else {
        Add_Port(Sim, F, Sent.Port);
        Keep_Sentence(F.Log, Sim.Services.Time().Local_us(), Sent.Port, Sent.Text);
        Show_Types(F);
    }
    Show_Log(F);
}

void Filter_Changed(frmTraffic& F) {
    Set_Filter(F.Log, {F.cmbPort.Item_Data(), static_cast<std::size_t>(std::max(F.cmbType.List_Index(), 0)),
                       F.txtFilter.Text()});
    Show_Log(F);
}

void Show_Fields(frmTraffic& F) {
    const int Row = F.hfgTraffic.Selected_Row();
    F.Chosen = F.Log.Shown[static_cast<std::size_t>(Row)];
    const auto Parts = Take_Apart(Record_At(F, Row).Text);
    F.hfgFields.Set_Rows(static_cast<int>(Parts.size()));
    for (int I = 0; I < F.hfgFields.Rows(); ++I) {
        const Field_Value& Part = Parts[static_cast<std::size_t>(I)];
        F.hfgFields.Set_Cell(I, 0, Part.Name);
        F.hfgFields.Set_Cell(I, 1, Printable(Part.Value));
        F.hfgFields.Set_Cell(I, 2, Part.Unit);
    }
}

// From the row behind the chosen one on, round the end, and the chosen one last.
void cmdFind_Click(Simulator& Sim, frmTraffic& F) {
    const int Rows = F.hfgTraffic.Rows();
    for (int Step = 1; Step <= Rows; ++Step) {
        const int Row = (F.hfgTraffic.Selected_Row() + Step) % Rows;
        if (Contains(Record_At(F, Row).Text, F.txtSearch.Text())) return F.hfgTraffic.Select_Row(Row);
    }
    Sim.Windows.Boxes.Show("None of the sentences shown contains " + F.txtSearch.Text());
}

void cmdPause_Click(frmTraffic& F) {
    const bool Stops = *F.cmdPause.Caption == Running;
    F.cmdPause.Caption = std::string(Stops ? Paused : Running);
    if (!Stops) F.Passed_By = 0;
    Show_Log(F);
}

void cmdClear_Click(frmTraffic& F) {
    Clear_Log(F.Log);
    F.Passed_By = 0;
    F.hfgFields.Set_Rows(0);
    Show_Log(F);
}

void Export(Simulator& Sim, const std::string& File) {
    if (File.empty()) return;
    const auto* const Window = Open_One<frmTraffic>(Sim);
    if (!Window) {
        Sim.Windows.Boxes.Show("The Traffic window has been closed. Nothing was exported.");
        return;
    }
    const Traffic_Log& Log = Window->Log;
    Record_Writer Writer;
    std::string Bytes;
    for (const std::uint64_t Number : Log.Shown) {
        const Traffic_Record& R = Record_Of(Log, Number);
        Writer.Append(Bytes, R.Local_us, R.Port, R.Text);
    }
    try {
        Sim.Services.Disk().Replace(File, Bytes);
    } catch (const Run_Time_Error& Failure) {
        Sim.Windows.Boxes.Show(File + " could not be written: " + Failure.what(), "", Box_Icon::Stop);
        return;
    }
    Sim.Windows.Boxes.Show(std::to_string(Log.Shown.size()) +
                           (Log.Shown.size() == 1 ? " sentence" : " sentences") + " exported to " + File);
}

void cmdExport_Click(Simulator& Sim) {
    File_Dialog Question;
    Question.Save = true;
    Question.Title = "Export Traffic";
    Question.Filter = "Recordings (*.rec)|*.rec";
    Question.Default_Extension = ".rec";
    Question.Folder = Sim.State.Of<Shell_State>().Data_Folder;
    Question.Answer = [&Sim](const std::string& File) { Export(Sim, File); };
    Sim.Windows.Ask_File(std::move(Question));
}

void Wire(Simulator& Sim, frmTraffic& F) {
    F.cmbPort.Click = [&F] { Filter_Changed(F); };
    F.cmbType.Click = [&F] { Filter_Changed(F); };
    F.txtFilter.Change = [&F] { Filter_Changed(F); };
    F.txtSearch.Change = [&F] { F.cmdFind.Enabled = !F.txtSearch.Text().empty(); };
    F.cmdFind.Click = [&Sim, &F] { cmdFind_Click(Sim, F); };
    F.cmdPause.Click = [&F] { cmdPause_Click(F); };
    F.cmdClear.Click = [&F] { cmdClear_Click(F); };
    F.cmdExport.Click = [&Sim] { cmdExport_Click(Sim); };
    F.hfgTraffic.Row_Chosen = [&F] { Show_Fields(F); };
    F.hfgTraffic.Set_Source(0, [&Sim, &F](int Row, int Column) { return Traffic_Cell(Sim, F, Row, Column); });
}

void frmTraffic_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmTraffic&>(Opened);
    F.cmbPort.Add_Item("All ports", port_number::None);
    Rebuild_Port_List(Sim, F);
    Show_Types(F);
    F.cmbPort.Set_List_Index(0);
    F.cmbType.Set_List_Index(0);
    F.cmdFind.Enabled = false;
    Wire(Sim, F);
    Show_Log(F);
    Sim.Told.Sent.Add(F, [&Sim, &F](const Sent_Sentence& Sent) { Take_Sentence(Sim, F, Sent); });
    Sim.Told.Links_Chosen.Add(F, [&Sim, &F] { Rebuild_Port_List(Sim, F); });
}

} // namespace

frmTraffic::frmTraffic(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Child) {
    Caption = "Traffic";
    Set_Place(1200, 1200, 12000, 7500);
}

const Window_Class Traffic_Window{
    .Name = frmTraffic::Class_Name,
    .Entry = {.Name = "mnuTraffic", .Menu = "Window", .Text = "Traffic", .Place = 22},
    .Make = Make_Single<frmTraffic>,
    .Load = frmTraffic_Load,
    .Lay_Out = Lay_Out_Traffic};

} // namespace brinewright
