#include "links/link_record.hpp"
#include "links/link_watch.hpp"
#include "links/links_at_start.hpp"
#include "links/port_list.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/state/windows.hpp"

namespace brinewright {

namespace {

constexpr std::size_t Longest_Device = 24;

// The last part of a device's path, and of a long one its end, which tells like devices apart.
std::string Device_Name(Simulator& Sim, int Port) {
    std::string Name = Sim.Services.Device_Of(Port);
    Name.erase(0, Name.rfind('/') + 1);
    return Name.size() <= Longest_Device ? Name : "..." + Name.substr(Name.size() - Longest_Device);
}

std::string Closed_Text(const Link_Record& R) {
    return R.Name + " is closed" + (R.Why_Not.empty() ? "" : ": " + R.Why_Not);
}

std::string Panel_Text(Simulator& Sim, int Port) {
    const Link_Record& R = Record_Of(Sim, Port);
    if (!R.Open) return Closed_Text(R);
    std::string Text = R.Name;
    if (Port == port_number::TCP)
        Text += "  " + std::to_string(R.Clients) + (R.Clients == 1 ? " client" : " clients");
    else if (const std::string Device = Port < port_number::TCP ? Device_Name(Sim, Port) : "";
             !Device.empty())
        Text += "  " + Device;
    return Text + "  " + Format_Dot(R.Sentences_Per_s, "0.0") + "/s";
}

std::string Panel_Tip(const Simulator& Sim, int Port) {
    const Link_Record& R = Record_Of(Sim, Port);
    if (R.Open)
        return R.Name + ": " + std::to_string(R.Sent) + " sentences sent, " + std::to_string(R.Refused) +
               " refused, " + std::to_string(R.Skipped) + " skipped. Click to open the port setup";
    return Closed_Text(R) + ". Click to open it again";
}

void Show_Links_Closed(Simulator& Sim) {
    Label& Shown = Main_Window(Sim).sbLinksClosed;
    Shown.Fore_Colour = Ink::Red;
    Shown.Visible = Links_Are_Closed(Sim);
}

void Show_Link(Simulator& Sim, int Port) {
    const Link_Record& R = Record_Of(Sim, Port);
    Label& Shown = Main_Window(Sim).sbLink[Port];
    Shown.Visible = R.Wanted && !Links_Are_Closed(Sim);
    if (!R.Wanted) return;
    Shown.Caption = Panel_Text(Sim, Port);
    Shown.Fore_Colour = R.Open ? Ink::Normal : Ink::Red;
    Shown.Tool_Tip = Panel_Tip(Sim, Port);
}

} // namespace

void Wire_Link_Panels(Simulator& Sim) {
    frmMain& Main = Main_Window(Sim);
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        Main.sbLink[Port].Visible = false;
        Main.sbLink[Port].Mouse_Down = [&Sim, Port](Mouse_Button) {
            if (Record_Of(Sim, Port).Open)
                Open_Window(Sim, "frmSetup");
            else
                Open_Link_Again(Sim, Port);
        };
    }
    Main.sbLinksClosed.Mouse_Down = [&Sim](Mouse_Button) { Open_All_Links(Sim); };
    Show_Links_Closed(Sim);
    Sim.Told.Link.Add(&Sim, [&Sim](int Port) {
        Show_Link(Sim, Port);
        Show_Links_Closed(Sim);
    });
}

} // namespace brinewright
