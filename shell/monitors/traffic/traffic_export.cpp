#include "shell/monitors/traffic/traffic_export.hpp"

#include "shell/monitors/traffic/frm_traffic.hpp"
#include "shell/state/say.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"
#include "shell/transmit/record_format.hpp"

#include <utility>

namespace brinewright {

namespace {

void Export(Simulator& Sim, const std::string& File) {
    if (File.empty()) return;
    const auto* const Window = Open_One<frmTraffic>(Sim);
    if (!Window) return Say(Sim, "The Traffic window has been closed. Nothing was exported.");
    Record_Writer Writer;
    std::string Bytes;
    std::size_t Count = 0;
    for (const std::uint64_t Number : Window->List.Shown) {
        const Logged_Sentence& Entry = Entry_Of(Sim.Log, Number);
        if (Entry.Received) continue; // a recording says what left
        Writer.Append(Bytes, Entry.Local_us, Entry.Port, Text_Of(Sim.Log, Number));
        ++Count;
    }
    try {
        Sim.Services.Disk().Replace(File, Bytes);
    } catch (const Run_Time_Error& Failure) {
        return Say(Sim, File + " could not be written: " + Failure.what());
    }
    const std::size_t Left_Out = Window->List.Shown.size() - Count;
    Say(Sim, std::to_string(Count) + (Count == 1 ? " sentence" : " sentences") + " exported to " + File +
                 (Left_Out == 0 ? "" : ", without " + std::to_string(Left_Out) + " received"));
}

} // namespace

void Export_Traffic(Simulator& Sim) {
    File_Dialog Question;
    Question.Save = true;
    Question.Title = "Export Traffic";
    Question.Filter = "Recordings (*.rec)|*.rec";
    Question.Default_Extension = ".rec";
    Question.Folder = Sim.State.Of<Shell_State>().Data_Folder;
    Question.Answer = [&Sim](const std::string& File) { Export(Sim, File); };
    Sim.Windows.Ask_File(std::move(Question));
}

} // namespace brinewright
