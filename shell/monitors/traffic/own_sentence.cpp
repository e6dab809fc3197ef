#include "shell/monitors/traffic/own_sentence.hpp"

#include "links/port_list.hpp"
#include "sentences/checksum.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/wire_text.hpp"
#include "shell/kit/sentence_family.hpp"
#include "shell/monitors/traffic/frm_traffic.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/transmit/send_nmea.hpp"
#include "shell/transmit/sending_as.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace brinewright {

namespace {

constexpr double Shortest_s = 0.01, Longest_s = 3600;
constexpr std::size_t Longest_Own = 1000;

void Tell(frmTraffic& F, std::string Text, Ink Colour) {
    F.lblSend.Fore_Colour = Colour;
    F.lblSend.Caption = std::move(Text);
}

void Refuse(frmTraffic& F, std::string Why) { Tell(F, std::move(Why), Ink::Red); }

// Why nothing has left; what holds the output is for all sentences alike.
std::string Reason_It_Stayed(Simulator& Sim) {
    if (Sim.State.Of<Shell_State>().Pause_Active) return "Not sent: transmission is paused";
    if (!Sim.Windows.Boxes.Standing.empty()) return "Not sent: output is held while a message stands";
    return "Not sent: the link did not take it";
}

// False when its link is in use no more.
bool Send(Simulator& Sim, frmTraffic& F, const Own_Sentence& One) {
    if (!Link_In_Use(Sim, One.Port)) {
        Refuse(F, "Not sent: " + Link_Name(Sim, One.Port) + " is not in use, see Setup > Com setup");
        return false;
    }
    const Sending_As Mark(Sim, sender::Traffic);
    F.Own.Left = false; // the window hears of it when it does
    std::string Text = One.Text;
    Send_NMEA(Sim, Text, One.Port);
    if (!F.Own.Left) {
        Refuse(F, Reason_It_Stayed(Sim));
        return true;
    }
    ++F.Own.Count;
    Tell(F,
         (F.Own.Count == 1 ? "Sent" : "Sent " + std::to_string(F.Own.Count) + " times") + " on " +
             Link_Name(Sim, One.Port),
         Ink::Normal);
    return true;
}

void Send_First(Simulator& Sim, frmTraffic& F, const Own_Sentence& One) {
    F.Own.Count = 0;
    Send(Sim, F, One);
}

// What stands in the controls; nothing, and said why, when it cannot be sent.
std::optional<Own_Sentence> Own_In_Controls(Simulator& Sim, frmTraffic& F) {
    if (const std::string Why = Refusal_Of(F.txtSend.Text()); !Why.empty()) {
        Refuse(F, Why);
        return std::nullopt;
    }
    if (F.cmbSendPort.List_Index() < 0) {
        Refuse(F, F.cmbSendPort.Items().empty() ? "No link is in use: Setup > Com setup" : "Choose a link");
        return std::nullopt;
    }
    const std::string& Text = F.txtSend.Text();
    return Own_Sentence{No_Checksum(Sim) ? Text : With_Checksum(Text),
                        static_cast<std::int16_t>(F.cmbSendPort.Item_Data())};
}

std::optional<double> Period_s(const std::string& Text) {
    const bool Is_Number =
        Text.find_first_of("0123456789") != std::string::npos &&
        Text.find_first_not_of("0123456789., ") == std::string::npos &&
        std::count_if(Text.begin(), Text.end(), [](char C) { return C == '.' || C == ','; }) <= 1;
    const double Value_s = Val_Dot(Text);
    if (!Is_Number || Value_s < Shortest_s || Value_s > Longest_s) return std::nullopt;
    return Value_s;
}

void Stop(frmTraffic& F) {
    F.timer_Send.Set_Interval(0);
    F.cmdRepeat.Caption = std::string("Repeat");
}

void cmdSend_Click(Simulator& Sim, frmTraffic& F) {
    if (const auto One = Own_In_Controls(Sim, F)) Send_First(Sim, F, *One);
}

void cmdRepeat_Click(Simulator& Sim, frmTraffic& F) {
    if (F.timer_Send.Interval_ms() > 0) {
        Stop(F);
        return Tell(F, "Stopped, " + std::to_string(F.Own.Count) + " sent", Ink::Normal);
    }
    auto One = Own_In_Controls(Sim, F);
    if (!One) return;
    const auto Every_s = Period_s(F.txtEvery.Text());
    if (!Every_s) return Refuse(F, "The time between two sentences is a number from 0.01 to 3600 s");
    F.Own.Repeated = std::move(*One);
    F.timer_Send.Set_Interval(*Every_s * 1000);
    F.cmdRepeat.Caption = std::string("Stop");
    Send_First(Sim, F, F.Own.Repeated);
}

void cmdResend_Click(Simulator& Sim, frmTraffic& F) {
    if (!F.Shown_One) return;
    if (!F.Shown_One->Whole) return Refuse(F, "Not sent: only the beginning of so long a text was kept");
    Send_First(Sim, F, *F.Shown_One);
}

// The sentence alone: header and tags are put before those of the sensors only.
void cmdEdit_Click(frmTraffic& F) {
    if (!F.Shown_One) return;
    F.txtSend.Set_Text(std::string(Bare_Sentence(F.Shown_One->Text)));
    if (const auto Port = F.Shown_One->Port; F.cmbSendPort.Item_Data() != Port)
        F.cmbSendPort.Choose_Data(Port);
    Tell(F, "", Ink::Normal);
    F.Windows.User_Focus(F.txtSend);
    F.txtSend.Select_All();
}

} // namespace

std::string Refusal_Of(std::string_view Text) {
    if (Text.empty()) return "There is nothing to send: type a sentence, as $GPGLL,5412.3,N,00608.9,E";
    if (Text.size() > Longest_Own) return "The sentence is longer than 1000 characters";
    if (std::any_of(Text.begin(), Text.end(), [](char C) { return C < ' ' || C > '~'; }))
        return "A sentence has printable characters of ASCII only";
    std::string_view Sentence = Text;
    Take_Tag_Block(Sentence);
    if (!Sentence.starts_with('$') && !Sentence.starts_with('!')) return "A sentence begins with $ or !";
    if (Sentence.size() < 2 || Sentence[1] == '*') return "The sentence has no address";
    return {};
}

std::string With_Checksum(std::string_view Sentence) {
    std::string_view Bare = Sentence;
    Take_Tag_Block(Bare);
    const auto Star = Bare.find('*');
    if (Star != std::string_view::npos && Star + 1 < Bare.size()) return std::string(Sentence);
    return std::string(Sentence) + (Star == std::string_view::npos ? "*" : "") + Add_Checksum(Bare);
}

void Show_Links_To_Send_On(Simulator& Sim, frmTraffic& F) {
    const std::int32_t Was = F.cmbSendPort.Item_Data();
    Fill_Port_List(Sim, F.cmbSendPort, static_cast<std::int16_t>(Was));
    if (Was == 0 && !F.cmbSendPort.Items().empty()) F.cmbSendPort.Set_List_Index(0);
}

void Wire_Sending(Simulator& Sim, frmTraffic& F) {
    F.txtSend.Key_Down = [&Sim, &F](int Key_Code) {
        if (Key_Code == key::Enter) cmdSend_Click(Sim, F);
        return false;
    };
    F.cmdSend.Click = [&Sim, &F] { cmdSend_Click(Sim, F); };
    F.cmdRepeat.Click = [&Sim, &F] { cmdRepeat_Click(Sim, F); };
    F.cmdResend.Click = [&Sim, &F] { cmdResend_Click(Sim, F); };
    F.cmdEdit.Click = [&F] { cmdEdit_Click(F); };
    F.timer_Send.Tick = [&Sim, &F] {
        if (!Send(Sim, F, F.Own.Repeated)) Stop(F);
    };
    F.cmdResend.Enabled = F.cmdEdit.Enabled = false;
    Show_Links_To_Send_On(Sim, F);
}

} // namespace brinewright
