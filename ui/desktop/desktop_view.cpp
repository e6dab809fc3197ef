#include "ui/desktop/desktop_view.hpp"

#include "shell/main/frm_main.hpp"
#include "shell/state/fault_state.hpp"
#include "ui/desktop/form_window.hpp"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace brinewright {

namespace {

constexpr int Look_Pause_ms = 50; // 20 looks a second: figures and sentences cannot be read faster
constexpr std::int64_t Look_Takes_us = 12'000;
constexpr int Postponed_Looks_Limit = 10;
constexpr const char* Palette_Key = "Palette";

// The empty area says what to do.
class Working_Area : public QMdiArea {
  public:
    Working_Area(const Theme& Its_Theme, QWidget* Parent) : QMdiArea(Parent), Colours(Its_Theme) {
        setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter Painter(viewport());
        Painter.fillRect(viewport()->rect(), Colours.Colour(Token::Window));
        if (!subWindowList().isEmpty()) return;
        Painter.setPen(Colours.Colour(Token::Dim_Text));
        Painter.setFont(Readout_Font(16));
        Painter.drawText(viewport()->rect(), Qt::AlignCenter,
                         QStringLiteral("No window is open: Window > GNSS 1"));
    }

  private:
    const Theme& Colours;
};

struct Fault_Text {
    bool Fault_State::*Fault;
    const char* Text;
};

constexpr Fault_Text Fault_Texts[] = {
    {&Fault_State::Fault_No_Checksum, "no checksum"},
    {&Fault_State::Fault_Faulty_Checksum, "faulty checksum"},
    {&Fault_State::Fault_Merged, "merged messages"},
    {&Fault_State::Fault_Cut, "cut messages"},
    {&Fault_State::Fault_Split, "split messages"},
};

// The filter of a file dialog as the program tells it, "Name|*.ini", in the toolkit's form.
QString File_Filter(const std::string& Filter) {
    const QStringList Parts = To_Screen(Filter).split(QLatin1Char('|'));
    return Parts.size() < 2 ? QString()
                            : Parts[0].section(QStringLiteral(" ("), 0, 0) + " (" + Parts[1] + ")";
}

} // namespace

Desktop_View::Desktop_View(Simulator& Its_Simulator, Theme& Its_Theme)
    : Sim(Its_Simulator), Colours(Its_Theme), Area(new Working_Area(Its_Theme, this)),
      Fault_Strip(new QLabel) {
    auto* Centre = new QWidget(this);
    auto* Column = new QVBoxLayout(Centre);
    Column->setContentsMargins(0, 0, 0, 0);
    Column->setSpacing(0);
    Fault_Strip->setObjectName(QStringLiteral("fault_strip"));
    Fault_Strip->hide();
    Column->addWidget(Fault_Strip);
    Column->addWidget(Area);
    setCentralWidget(Centre);
    Make_Menus();
    Make_Status_Bar();
    Look.setSingleShot(true);
    connect(&Look, &QTimer::timeout, this, &Desktop_View::Look_Between_Ticks);
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

void Desktop_View::Make_Menus() {
    std::map<std::string, QMenu*> Menus;
    for (Control* C : Sim.Main->Controls) {
        if (C->Kind != Control_Kind::Menu_Item) continue;
        auto& Item = static_cast<Menu_Item&>(*C);
        QMenu*& Menu = Menus[Item.Menu];
        if (!Menu) {
            if (Item.Menu == "Window") Make_View_Menu();
            Menu = menuBar()->addMenu("&" + To_Screen(Item.Menu));
            Menu->setToolTipsVisible(true);
        }
        QAction* Action = Menu->addAction(To_Screen(*Item.Caption));
        Action->setObjectName(To_Screen(Item.Path()));
        connect(Action, &QAction::triggered, this, [this, &Item, Action] {
            Action->setChecked(*Item.Checked); // the model decides
            Sim.Windows.Event([&] { Sim.Windows.User_Click(Item); });
            Follow();
        });
        Actions[&Item] = Action;
    }
}

void Desktop_View::Make_View_Menu() {
    QMenu* Menu = menuBar()->addMenu(QStringLiteral("&View"));
    auto* Group = new QActionGroup(this);
    const std::string Kept = Sim.Services.Settings().Get(Palette_Key, Palette_Names[0]);
    for (std::size_t I = 0; I < Palette_Names.size(); ++I) {
        QAction* Action = Menu->addAction(QString::fromLatin1(Palette_Names[I]));
        Action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(I + 1)));
        Action->setCheckable(true);
        Group->addAction(Action);
        const auto Kind = static_cast<Palette_Kind>(I);
        connect(Action, &QAction::triggered, this, [this, Kind, I] {
            Colours.Choose(Kind);
            Sim.Services.Settings().Set(Palette_Key, Palette_Names[I]);
        });
        if (Kept == Palette_Names[I]) {
            Action->setChecked(true);
            if (Colours.Chosen() != Kind) Colours.Choose(Kind);
        }
    }
}

void Desktop_View::Make_Status_Bar() {
    statusBar()->setSizeGripEnabled(false);
    for (int Port = 1; Port <= 16; ++Port) {
        auto* Panel = new QLabel(this);
        Panel->setObjectName(To_Screen(Main_Window(Sim).sbStatusBar[Port].Path()));
        statusBar()->addWidget(Panel);
        Panels[Port] = Panel;
    }
}

void Desktop_View::Follow() {
    if (!Sim.Main || Sim.Ended) return;
    Seen = Sim.Windows.Revision;
    Follow_Main();
    Follow_Windows();
    Follow_Boxes();
    Follow_File_Dialogs();
}

void Desktop_View::Follow_Main() {
    setWindowTitle(To_Screen(Sim.Main->Caption));
    for (const auto& [Item, Action] : Actions) {
        Action->setText(To_Screen(*Item->Caption));
        Action->setEnabled(*Item->Enabled);
        Action->setVisible(*Item->Visible);
        if (*Item->Checked) Action->setCheckable(true);
        Action->setChecked(*Item->Checked);
        if (!*Item->Checked) Action->setCheckable(false);
    }
    for (const auto& [Port, Panel] : Panels) {
        Panel->setText(To_Screen(*Main_Window(Sim).sbStatusBar[Port].Caption));
        Panel->setVisible(*Main_Window(Sim).sbStatusBar[Port].Visible);
    }
    QStringList Faults;
    for (const Fault_Text& Fault : Fault_Texts)
        if (Sim.State.Of<Fault_State>().*Fault.Fault) Faults << QString::fromLatin1(Fault.Text);
    Fault_Strip->setText(QStringLiteral("Fault injected: ") + Faults.join(QStringLiteral(", ")));
    Fault_Strip->setVisible(!Faults.isEmpty());
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
    const Form* Active = Sim.Windows.Active_Form;
    const auto Found = Shown.find(Active);
    if (Active != Active_Seen && Found != Shown.end()) Found->second->Activate();
    Active_Seen = Active;
}

// One box at a time, the oldest. It does not stop the event loop: timers tick behind it.
void Desktop_View::Follow_Boxes() {
    const auto& Standing = Sim.Windows.Boxes.Standing;
    const bool Still_Stands = Box && !Standing.empty() && Standing.front().Id == Box_Id;
    if (Still_Stands) return;
    if (Box) {
        Box->deleteLater();
        Box = nullptr;
    }
    if (Standing.empty()) return;
    const Message_Box& Front = Standing.front();
    constexpr QMessageBox::Icon Icons[] = {QMessageBox::NoIcon, QMessageBox::Information,
                                           QMessageBox::Warning, QMessageBox::Critical};
    const QMessageBox::StandardButtons Cancel =
        Front.Buttons == Box_Buttons::OK_Cancel ? QMessageBox::Cancel : QMessageBox::NoButton;
    Box_Id = Front.Id;
    // Over the dialog that the user is in, so that the keyboard goes back there.
    QWidget* const User_Is_In = QApplication::activeWindow();
    const bool In_Dialog = qobject_cast<QDialog*>(User_Is_In) && !qobject_cast<QMessageBox*>(User_Is_In);
    QWidget* const Below = In_Dialog ? User_Is_In : this;
    Box = new QMessageBox(Icons[static_cast<int>(Front.Icon)],
                          Front.Title.empty() ? QStringLiteral("Brinewright") : To_Screen(Front.Title),
                          To_Screen(Front.Text), QMessageBox::Ok | Cancel, Below);
    Box->setTextFormat(Qt::PlainText);
    connect(Box, &QMessageBox::finished, this, [this, Id = Box_Id] {
        Sim.Windows.Event([&] { Sim.Windows.Boxes.Answer(Id); });
        Follow();
    });
    Box->setDefaultButton(QMessageBox::Ok);
    Box->open();
    Box->activateWindow();
}

// One question at a time, the oldest. One that automation has answered goes away.
void Desktop_View::Follow_File_Dialogs() {
    const auto& Questions = Sim.Windows.File_Dialogs;
    if (!Questions.empty() && Questions.front().Id == Asked_Id) return;
    if (Asking) {
        Asking->disconnect(this);
        Asking->close();
    }
    if (Questions.empty()) return;
    const File_Dialog& Question = Questions.front();
    Asked_Id = Question.Id;
    Asking = new QFileDialog(this, To_Screen(Question.Title), QString::fromStdString(Question.Folder),
                             File_Filter(Question.Filter));
    Asking->setAttribute(Qt::WA_DeleteOnClose);
    Asking->setAcceptMode(Question.Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    Asking->setFileMode(Question.Save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    Asking->setDefaultSuffix(To_Screen(Question.Default_Extension).remove(QLatin1Char('.')));
    connect(Asking, &QFileDialog::finished, this, [this, Dialog = Asking.data(), Id = Asked_Id](int Result) {
        const std::string Path =
            Result == QDialog::Accepted ? Dialog->selectedFiles().value(0).toStdString() : std::string();
        Sim.Windows.Event([&] { Sim.Windows.Answer_File(Id, Path); });
        Follow();
    });
    Asking->open();
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
