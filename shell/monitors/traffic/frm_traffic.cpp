#include "shell/monitors/traffic/frm_traffic.hpp"

#include "links/port_list.hpp"
#include "platform/desktop.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/sentence_clock.hpp"
#include "sentences/wire_text.hpp"
#include "shell/monitors/traffic/traffic_export.hpp"
#include "shell/state/say.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {

enum Column {
    Time_Column,
    Link_Column,
    Direction_Column,
    Source_Column,
    Type_Column,
    Since_Column,
    Rate_Column,
    Verdict_Column
};

constexpr const char* Running = "Pause";
constexpr const char* Paused = "Continue";
constexpr const char* Nothing = "---";
constexpr std::int32_t All_Sources = -1;
constexpr Checksum_Verdict Verdicts[] = {Checksum_Verdict::Ok, Checksum_Verdict::Wrong,
                                         Checksum_Verdict::None};

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

std::string Source_Name(const Simulator& Sim, std::int16_t Sender) {
    if (Sender == sender::Traffic) return "Traffic";
    const Window_Class* Class = Sender == sender::None ? nullptr : Class_Of_Index(Sim, Sender);
    return Class ? Entry_Text(*Class, Instance_Of_Index(*Class, Sender)) : Nothing;
}

Ink Verdict_Ink(Checksum_Verdict Verdict) {
    switch (Verdict) {
    case Checksum_Verdict::Ok: return Ink::Green;
    case Checksum_Verdict::Wrong: return Ink::Red;
    case Checksum_Verdict::None: break;
    }
    return Ink::Amber;
}

std::uint64_t Number_At(const frmTraffic& F, int Row) { return F.List.Shown[static_cast<std::size_t>(Row)]; }

// Valid sentences are the rule and keep the colour of text.
Ink Row_Ink(const frmTraffic& F, int Row) {
    const Ink Colour = Verdict_Ink(Note_Of(F.List, Number_At(F, Row)).Verdict);
    return Colour == Ink::Green ? Ink::Normal : Colour;
}

Grid::Cell Traffic_Cell(Simulator& Sim, const frmTraffic& F, int Row, int Column) {
    const std::uint64_t Number = Number_At(F, Row);
    const Logged_Sentence& Entry = Entry_Of(Sim.Log, Number);
    const Traffic_Note& Note = Note_Of(F.List, Number);
    switch (Column) {
    case Time_Column: return {Clock_Text(Entry.Local_us)};
    case Link_Column: return {Link_Name(Sim, Entry.Port)};
    case Direction_Column: return {Entry.Received ? "in" : "out"};
    case Source_Column: return {Source_Name(Sim, Entry.Sender)};
    case Type_Column: return {F.List.Types[Note.Type]};
    case Since_Column:
        return {Note.Since_us ? Format_Dot(static_cast<double>(*Note.Since_us) / us_Per_Second, "0.000")
                              : Nothing};
    case Rate_Column: return {Note.Rate_per_s ? Format_Dot(*Note.Rate_per_s, "0.00") : Nothing};
    case Verdict_Column: return {Verdict_Text(Note.Verdict), Verdict_Ink(Note.Verdict)};
    default: return {Printable(Without_Line_End(Text_Of(Sim.Log, Number)))};
    }
}

int Chosen_Row(const frmTraffic& F) {
    if (!F.Chosen) return -1;
    const auto Found = std::lower_bound(F.List.Shown.begin(), F.List.Shown.end(), *F.Chosen);
    if (Found == F.List.Shown.end() || *Found != *F.Chosen) return -1;
    return static_cast<int>(Found - F.List.Shown.begin());
}

void Show_List(const Simulator& Sim, frmTraffic& F) {
    // The fields of a sentence that has gone stay to be read; only its row is chosen no more.
    if (F.Chosen && *F.Chosen < Sim.Log.Oldest) F.Chosen.reset();
    F.hfgTraffic.Source_Moved(static_cast<int>(F.List.Shown.size()), Chosen_Row(F),
                              std::exchange(F.List.Gone, 0));
    F.hfgTraffic.Last_Column_Size = static_cast<int>(F.List.Longest_Shown);
    std::string Text = std::to_string(F.List.Shown.size()) + " of " +
                       std::to_string(Sim.Log.Next - Sim.Log.Oldest) + " sentences";
    if (Sim.Log.Passed_By != 0) Text += ", " + std::to_string(Sim.Log.Passed_By) + " passed by while paused";
    F.lblCount.Caption = std::move(Text);
}

void Add_Entry(Combo_Box& List, std::int32_t Data, const std::string& Text) {
    const auto& Items = List.Items();
    if (std::none_of(Items.begin(), Items.end(), [Data](const auto& I) { return I.Data == Data; }))
        List.Add_Item(Text, Data);
}

// What is new to the lists of the filter.
void Offer_Choices(const Simulator& Sim, frmTraffic& F, std::uint64_t First) {
    for (std::size_t I = F.cmbType.Items().size(); I < F.List.Types.size(); ++I)
        F.cmbType.Add_Item(F.List.Types[I]);
    for (std::uint64_t Number = First; Number < F.List.Next; ++Number) {
        const Logged_Sentence& Entry = Entry_Of(Sim.Log, Number);
        Add_Entry(F.cmbPort, Entry.Port, Link_Name(Sim, Entry.Port));
        Add_Entry(F.cmbSource, Entry.Sender,
                  Entry.Sender == sender::None ? "No window" : Source_Name(Sim, Entry.Sender));
    }
}

void Follow(const Simulator& Sim, frmTraffic& F) {
    const std::uint64_t First = std::max(F.List.Next, Sim.Log.Oldest);
    Follow_Log(F.List, Sim.Log);
    Offer_Choices(Sim, F, First);
    Show_List(Sim, F);
}

// Names the links anew after a change of the ports and adds those in use.
void Rebuild_Port_List(Simulator& Sim, frmTraffic& F) {
    for (int I = 1; I < static_cast<int>(F.cmbPort.Items().size()); ++I)
        F.cmbPort.Set_Item(I, Link_Name(Sim, F.cmbPort.Items()[static_cast<std::size_t>(I)].Data));
    for (int Port = 1; Port <= port_number::Last; ++Port)
        if (Link_In_Use(Sim, Port)) Add_Entry(F.cmbPort, Port, Link_Name(Sim, Port));
}

void Filter_Changed(const Simulator& Sim, frmTraffic& F) {
    Traffic_Filter New;
    if (F.cmbSource.Item_Data() != All_Sources) New.Sender = F.cmbSource.Item_Data();
    New.Port = F.cmbPort.Item_Data();
    New.Type = static_cast<std::size_t>(std::max(F.cmbType.List_Index(), 0));
    if (const int Which = F.cmbVerdict.List_Index(); Which > 0) New.Verdict = Verdicts[Which - 1];
    New.Text = F.txtFilter.Text();
    Set_Filter(F.List, Sim.Log, std::move(New));
    Show_List(Sim, F);
}

void Show_Fields(frmTraffic& F) {
    F.hfgFields.Set_Rows(0);
    F.hfgFields.Set_Rows(static_cast<int>(F.Parts.size()));
    for (int I = 0; I < F.hfgFields.Rows(); ++I) {
        const Field_Value& Part = F.Parts[static_cast<std::size_t>(I)];
        F.hfgFields.Set_Cell(I, 0, Part.Name);
        F.hfgFields.Set_Cell(I, 1, Printable(Part.Value));
        F.hfgFields.Set_Cell(I, 2, Part.Unit);
    }
    F.hfgFields.Head_Count = *F.hfgFields.Head_Count + 1;
}

void hfgTraffic_Chosen(const Simulator& Sim, frmTraffic& F) {
    const std::uint64_t Number = Number_At(F, F.hfgTraffic.Selected_Row());
    const bool Is_Another = !F.Shown_One || F.Chosen != Number;
    F.Chosen = Number;
    if (!Is_Another) return; // the field that is marked stays so
    const Logged_Sentence& Entry = Entry_Of(Sim.Log, Number);
    const std::string Text(Without_Line_End(Text_Of(Sim.Log, Number)));
    F.Shown_One = {Text, Entry.Port, Entry.Kept_bytes == Entry.Length_bytes};
    F.Parts = Take_Apart(Text);
    F.txtSentence.Set_Text(Printable(Text));
    F.cmdResend.Enabled = F.cmdEdit.Enabled = true;
    Show_Fields(F);
}

void hfgFields_Chosen(frmTraffic& F) {
    const Field_Value& Part = F.Parts[static_cast<std::size_t>(F.hfgFields.Selected_Row())];
    F.txtSentence.Mark(static_cast<int>(Part.First), static_cast<int>(Part.Value.size()));
}

// The field whose characters or whose comma behind them it is.
void txtSentence_Chosen(frmTraffic& F, int Place) {
    for (int I = F.hfgFields.Rows() - 1; I >= 0; --I)
        if (F.Parts[static_cast<std::size_t>(I)].First <= static_cast<std::size_t>(Place)) {
            if (I != F.hfgFields.Selected_Row()) F.hfgFields.Select_Row(I);
            return;
        }
}

// From the row behind the chosen one on, round the end, and the chosen one last.
void cmdFind_Click(Simulator& Sim, frmTraffic& F) {
    if (F.txtSearch.Text().empty()) return;
    const int Rows = F.hfgTraffic.Rows();
    for (int Step = 1; Step <= Rows; ++Step) {
        const int Row = (F.hfgTraffic.Selected_Row() + Step) % Rows;
        if (Contains(Text_Of(Sim.Log, Number_At(F, Row)), F.txtSearch.Text()))
            return F.hfgTraffic.Select_Row(Row);
    }
    Say(Sim, "None of the sentences shown contains " + F.txtSearch.Text());
}

void cmdPause_Click(Simulator& Sim, frmTraffic& F) {
    Sim.Log.Held = !Sim.Log.Held;
    F.cmdPause.Caption = std::string(Sim.Log.Held ? Paused : Running);
    if (!Sim.Log.Held) Sim.Log.Passed_By = 0;
    Show_List(Sim, F);
}

void cmdClear_Click(Simulator& Sim, frmTraffic& F) {
    Clear_Log(Sim.Log);
    F.Shown_One.reset();
    F.Parts.clear();
    F.hfgFields.Set_Rows(0);
    F.txtSentence.Set_Text("");
    F.cmdResend.Enabled = F.cmdEdit.Enabled = false;
    Follow(Sim, F);
    Filter_Changed(Sim, F); // the column needs to hold no more of what was shown
}

void Fill_Filter(Simulator& Sim, frmTraffic& F) {
    F.cmbSource.Add_Item("All sources", All_Sources);
    F.cmbPort.Add_Item("All links", port_number::None);
    F.cmbVerdict.Add_Item("All verdicts");
    for (const Checksum_Verdict V : Verdicts) F.cmbVerdict.Add_Item(Verdict_Text(V));
    Rebuild_Port_List(Sim, F);
    Follow(Sim, F);
    for (Combo_Box* List : {&F.cmbSource, &F.cmbPort, &F.cmbType, &F.cmbVerdict}) List->Set_List_Index(0);
}

void Wire_Filter(Simulator& Sim, frmTraffic& F) {
    for (Combo_Box* List : {&F.cmbSource, &F.cmbPort, &F.cmbType, &F.cmbVerdict})
        List->Click = [&Sim, &F] { Filter_Changed(Sim, F); };
    F.txtFilter.Change = [&Sim, &F] { Filter_Changed(Sim, F); };
    F.txtSearch.Change = [&F] { F.cmdFind.Enabled = !F.txtSearch.Text().empty(); };
    F.txtSearch.Key_Down = [&Sim, &F](int Key_Code) {
        if (Key_Code == key::Enter) cmdFind_Click(Sim, F);
        return false;
    };
    F.cmdFind.Click = [&Sim, &F] { cmdFind_Click(Sim, F); };
    F.cmdFind.Enabled = false;
    F.cmdPause.Click = [&Sim, &F] { cmdPause_Click(Sim, F); };
    F.cmdClear.Click = [&Sim, &F] { cmdClear_Click(Sim, F); };
    F.cmdExport.Click = [&Sim] { Export_Traffic(Sim); };
}

void Wire_Lists(Simulator& Sim, frmTraffic& F) {
    F.hfgTraffic.Follows_End = true;
    F.hfgTraffic.Row_Chosen = [&Sim, &F] { hfgTraffic_Chosen(Sim, F); };
    F.hfgTraffic.Row_Colour = [&F](int Row) { return Row_Ink(F, Row); };
    F.hfgTraffic.Set_Source(0, [&Sim, &F](int Row, int Column) { return Traffic_Cell(Sim, F, Row, Column); });
    F.hfgFields.Row_Chosen = [&F] { hfgFields_Chosen(F); };
    F.txtSentence.Character_Chosen = [&F](int Place) { txtSentence_Chosen(F, Place); };
}

void frmTraffic_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmTraffic&>(Opened);
    Wire_Lists(Sim, F);
    Fill_Filter(Sim, F);
    Wire_Filter(Sim, F);
    Wire_Sending(Sim, F);
    Sim.Told.Sent.Add(F, [&Sim, &F](const Sent_Sentence& Sent) {
        if (!Sent.Link_Took_It) return;
        if (Sent.Sender == sender::Traffic) F.Own.Left = true;
        Follow(Sim, F);
    });
    Sim.Told.Received.Add(F, [&Sim, &F](int, const std::string&) { Follow(Sim, F); });
    Sim.Told.Links_Chosen.Add(F, [&Sim, &F] {
        Rebuild_Port_List(Sim, F);
        Show_Links_To_Send_On(Sim, F);
    });
    // A closed window cannot be told to continue.
    F.On_Unload = [&Sim] {
        Sim.Log.Held = false;
        Sim.Log.Passed_By = 0;
    };
}

} // namespace

frmTraffic::frmTraffic(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Child) {
    Caption = "Traffic";
    txtSentence.Caption = std::string("Choose a sentence above to see what it says");
    Set_Place(450, 300, 19500, 9000);
}

const Window_Class Traffic_Window{
    .Name = frmTraffic::Class_Name,
    .Entry = {.Name = "mnuTraffic", .Menu = "Window", .Text = "Traffic", .Place = 22},
    .Make = Make_Single<frmTraffic>,
    .Load = frmTraffic_Load,
    .Lay_Out = Lay_Out_Traffic};

} // namespace brinewright
