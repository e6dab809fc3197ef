// The simulator with its windows.

#include "app/program.hpp"
#include "ui/desktop/desktop_view.hpp"
#include "ui/desktop/opening_progress.hpp"

#include <QApplication>

#include <memory>

int main(int Argument_Count, char** Arguments) {
    using namespace brinewright;
    return Run_Main(Argument_Count, Arguments, "brinewright", [&](const Program_Options& Chosen) {
        QApplication Application(Argument_Count, Arguments);
        // The simulator decides when the program ends, not the last window that closes.
        QApplication::setQuitOnLastWindowClosed(false);
        Theme Colours(Application);
        std::unique_ptr<Opening_Progress> Progress;
        std::unique_ptr<Desktop_View> View;
        Front_End Front;
        Front.Shows_Boxes = true;
        Front.Open = [&](Simulator& Sim) {
            View = std::make_unique<Desktop_View>(Sim, Colours);
            Progress = std::make_unique<Opening_Progress>(Sim);
        };
        Front.Ready = [&](Simulator&) {
            Progress.reset();
            View->Open();
        };
        Front.Close = [&] {
            Progress.reset();
            View.reset();
        };
        Front.Grab = [&](const std::string& Form_Path, const std::string& File) {
            return View->Grab(Form_Path, File);
        };
        return Run_Program(Chosen, Front);
    });
}
