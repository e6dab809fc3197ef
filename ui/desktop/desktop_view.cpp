#include "ui/desktop/desktop_view.hpp"

#include "shell/main/file_menu.hpp"
#include "shell/main/frm_main.hpp"
#include "ui/desktop/box_view.hpp"
#include "ui/desktop/form_window.hpp"
#include "ui/desktop/link_panels.hpp"
#include "ui/desktop/menu_bar.hpp"
#include "ui/desktop/status_strip.hpp"
#include "ui/desktop/working_area.hpp"

#include <QCloseEvent>
#include <QFile>
#include <QFileInfo>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {

constexpr int Look_Pause_ms = 50; // 20 looks a second: figures and sentences cannot be read faster
constexpr int Saved_Pause_ms = 1000;
constexpr std::int64_t Look_Takes_us = 12'000;
constexpr int Postponed_Looks_Limit = 10;

} // namespace

Desktop_View::Desktop_View(Simulator& Its_Simulator, Theme& Its_Theme)
    : Sim(Its_Simulator), Colours(Its_Theme), Area(new Working_Area(Its_Theme, this)),
      Menus(new Menu_Bar(Its_Simulator, Its_Theme, *menuBar())),
      Strip(new Status_Strip(Its_Simulator, *menuBar())),
      Panels(new Link_Panels(Its_Simulator, *statusBar())), Boxes(new Box_View(Its_Simulator, *this)) {
    setCentralWidget(Area);
    connect(Strip, &Status_Strip::Acted, this, &Desktop_View::Follow);
    connect(Panels, &Link_Panels::Acted, this, &Desktop_View::Follow);
    connect(Area, &Working_Area::Resized, this, [this](const QSize& Room) {
        Sim.Windows.Room_Width = static_cast<float>(Room.width() * Twips_Per_Pixel);
        Sim.Windows.Room_Height = static_cast<float>(Room.height() * Twips_Per_Pixel);
    });
    connect(Menus, &Menu_Bar::Acted, this, &Desktop_View::Follow);
    connect(Boxes, &Box_View::Acted, this, &Desktop_View::Follow);
    Look.setSingleShot(true);
    connect(&Look, &QTimer::timeout, this, &Desktop_View::Look_Between_Ticks);
    Title_Later.setSingleShot(true);
    connect(&Title_Later, &QTimer::timeout, this, [this] {
        if (Sim.Main && !Sim.Ended) Follow_Title();
    });
    connect(&Colours, &Theme::Changed, this, [this] {
        Sim.Windows.Revision++;
        Look_Soon();
    });
    Sim.Windows.On_Settled.push_back(Settled_Hook{*this});
}

Desktop_View::~Desktop_View() {
    std::erase_if(Sim.Windows.On_Settled, [this](const Handler& Hook) {
        const auto* Ours = Hook.target<Settled_Hook>();
        return Ours && &Ours->View == this;
    });
}

void Desktop_View::Open() {
    if (Sim.Ended) return;
    Place_From_Model();
    show();
    Placing = false;
    Report_Place(); // what the first start took instead
    Follow();
}

void Desktop_View::Look_Soon() {
    Boxes->Take_Answered_Away();
    if (Sim.Windows.Revision != Seen && !Look.isActive()) Look.start(Look_Pause_ms);
}

// A look with what it makes paint takes some milliseconds. One that would hold up a tick comes behind it.
void Desktop_View::Look_Between_Ticks() {
    const auto Due_us = Sim.Timers.Next_Due_us();
    const std::int64_t Left_us = Due_us ? *Due_us - Sim.Services.Time().Wide_us() : Look_Takes_us;
    if (Left_us < Look_Takes_us && Postponed_Looks < Postponed_Looks_Limit) {
        ++Postponed_Looks;
        Look.start(static_cast<int>(std::max<std::int64_t>(Left_us, 0) / 1000) + 2);
        return;
    }
    Postponed_Looks = 0;
    Follow();
}

void Desktop_View::Follow() {
    if (!Sim.Main || Sim.Ended) return;
    Seen = Sim.Windows.Revision;
    Follow_Main();
    Follow_Windows();
    Boxes->Follow();
}

// Whether it is saved is reckoned from the whole setup, so once a second at most.
void Desktop_View::Follow_Title() {
    if (Saved_Looked.isValid() && Saved_Looked.elapsed() < Saved_Pause_ms) {
        if (!Title_Later.isActive()) Title_Later.start(Saved_Pause_ms);
        return;
    }
    Saved_Looked.start();
    const QString File = QFileInfo(QFile::decodeName(Sim.Setup_File.c_str())).fileName();
    const QString Star = Setup_Is_Saved(Sim) ? QString() : QStringLiteral(" *");
    setWindowTitle(To_Screen(Sim.Main->Caption) + (File.isEmpty() ? QString() : "  -  " + File + Star));
}

void Desktop_View::Follow_Main() {
    Follow_Title();
    Menus->Follow();
    Panels->Follow();
    Strip->Follow();
}

void Desktop_View::Follow_Windows() {
    const auto& Forms = Sim.Windows.Forms;
    std::erase_if(Shown, [&](const auto& Entry) {
        return std::none_of(Forms.begin(), Forms.end(),
                            [&](const auto& F) { return F.get() == Entry.first; });
    });
    for (const auto& F : Forms) {
        if (F == Sim.Main) continue;
        auto& Window = Shown[F.get()];
        if (!Window) {
            Window = std::make_unique<Form_Window>(Sim, F, Colours, *Area);
            connect(&Window->View(), &Form_View::Acted, this, &Desktop_View::Follow, Qt::QueuedConnection);
        }
        Window->Follow();
    }
    if (const Handler Arrange = std::exchange(Sim.Windows.When_Measured, nullptr)) {
        Sim.Windows.Event(Arrange);
        for (const auto& [F, Window] : Shown) Window->Follow();
    }
    const Form* Active = Sim.Windows.Active_Form;
    const auto Found = Shown.find(Active);
    // Also when the user chose another one, but a box that he left took the focus back.
    const bool Is_Child = Active && Active->Kind == Form_Kind::Child;
    if (Found != Shown.end() && (Active != Active_Seen || Is_Child)) Found->second->Activate();
    Active_Seen = Active;
}

QWidget* Desktop_View::Window_Of(const std::string& Form_Path) {
    Follow();
    const Form* F = Sim.Windows.Find_Form(Form_Path);
    if (F == Sim.Main.get()) return this;
    const auto Found = Shown.find(F);
    return F && Found != Shown.end() ? Found->second->Frame_Widget() : nullptr;
}

std::string Desktop_View::Grab(const std::string& Form_Path, const std::string& File) {
    QWidget* Window = Window_Of(Form_Path);
    if (!Window) return Form_Path + " is not open";
    return Window->grab().save(QString::fromStdString(File)) ? "" : File + " could not be written";
}

void Desktop_View::Place_From_Model() {
    const Form& F = *Sim.Main;
    QSize Wanted(static_cast<int>(F.Width) / Twips_Per_Pixel, static_cast<int>(F.Height) / Twips_Per_Pixel);
    QPoint Corner(static_cast<int>(F.Left) / Twips_Per_Pixel, static_cast<int>(F.Top) / Twips_Per_Pixel);
    const QRect Screen = screen()->availableGeometry();
    // The required first place is too small to hold a window; the first start takes a bench display's share
    // instead.
    constexpr QSize Least(640, 480);
    if (Wanted != Wanted.expandedTo(Least)) Wanted = QSize(1340, 740);
    // Not known before the window is up: about what a window manager puts around it.
    constexpr QSize Decoration(10, 40);
    const QSize Room = (Screen.size() - Decoration).expandedTo(Least);
    Wanted = Wanted.boundedTo(Room);
    // A kept place on a display that is gone comes back into view.
    Corner.setX(std::clamp(Corner.x(), Screen.left(), Screen.left() + Room.width() - Wanted.width()));
    Corner.setY(std::clamp(Corner.y(), Screen.top(), Screen.top() + Room.height() - Wanted.height()));
    resize(Wanted);
    move(Corner);
}

void Desktop_View::Report_Place() {
    if (Placing || !isVisible() || !Sim.Main || Sim.Ended || isMaximized()) return;
    Form& F = *Sim.Main;
    Sim.Windows.Event([&] {
        F.State = isMinimized() ? Window_State::Minimised : Window_State::Normal;
        if (!isMinimized())
            F.Set_Place(static_cast<float>(x() * Twips_Per_Pixel), static_cast<float>(y() * Twips_Per_Pixel),
                        static_cast<float>(width() * Twips_Per_Pixel),
                        static_cast<float>(height() * Twips_Per_Pixel));
    });
}

void Desktop_View::moveEvent(QMoveEvent*) { Report_Place(); }
void Desktop_View::resizeEvent(QResizeEvent*) { Report_Place(); }

void Desktop_View::changeEvent(QEvent* Changed) {
    if (Changed->type() == QEvent::WindowStateChange) Report_Place();
    QMainWindow::changeEvent(Changed);
}

void Desktop_View::closeEvent(QCloseEvent* Closing) {
    if (!Sim.Ended) Sim.Windows.Event([this] { Sim.Windows.Unload(*Sim.Main); });
    Closing->accept();
}

} // namespace brinewright
