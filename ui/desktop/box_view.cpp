#include "ui/desktop/box_view.hpp"

#include "ui/binder/form_view.hpp"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

#include <algorithm>
#include <optional>
#include <utility>

namespace brinewright {

namespace {

// The filter of a file dialog as the program tells it, "Name|*.ini", in the toolkit's form.
QString File_Filter(const std::string& Filter) {
    const QStringList Parts = To_Screen(Filter).split(QLatin1Char('|'));
    return Parts.size() < 2 ? QString()
                            : Parts[0].section(QStringLiteral(" ("), 0, 0) + " (" + Parts[1] + ")";
}

constexpr std::pair<Box_Button, QMessageBox::StandardButton> Toolkit_Buttons[] = {
    {Box_Button::OK, QMessageBox::Ok},
    {Box_Button::Cancel, QMessageBox::Cancel},
    {Box_Button::Yes, QMessageBox::Yes},
    {Box_Button::No, QMessageBox::No}};

QMessageBox::StandardButton Toolkit_Button(Box_Button Ours) {
    return Toolkit_Buttons[static_cast<std::size_t>(Ours)].second;
}

std::optional<Box_Button> Pressed_Button(int Result) {
    for (const auto& [Ours, Its] : Toolkit_Buttons)
        if (Its == Result) return Ours;
    return std::nullopt;
}

} // namespace

Box_View::Box_View(Simulator& Its_Simulator, QWidget& Its_Window)
    : QObject(&Its_Window), Sim(Its_Simulator), Window(Its_Window) {}

void Box_View::Follow() {
    Take_Answered_Away();
    Follow_Boxes();
    Follow_File_Dialogs();
}

void Box_View::Take_Answered_Away() {
    const auto Stands = [](const auto& Questions, std::int64_t Id) {
        return std::any_of(Questions.begin(), Questions.end(), [Id](const auto& Q) { return Q.Id == Id; });
    };
    if (Box && !Stands(Sim.Windows.Boxes.Standing, Box_Id)) {
        Box->disconnect(this);
        // Without a window manager nobody else gives the keyboard back.
        if (Box->isActiveWindow() || !Box->isVisible()) Box->parentWidget()->activateWindow();
        Box->hide();
        Box->deleteLater();
        Box = nullptr;
    }
    if (Asking && !Stands(Sim.Windows.File_Dialogs, Asked_Id)) {
        Asking->disconnect(this);
        if (Asking->isActiveWindow() || !Asking->isVisible()) Window.activateWindow();
        Asking->close();
        Asking = nullptr;
    }
}

void Box_View::Follow_Boxes() {
    const auto& Standing = Sim.Windows.Boxes.Standing;
    if (Box || Standing.empty()) return;
    const Message_Box& Front = Standing.front();
    constexpr QMessageBox::Icon Icons[] = {QMessageBox::NoIcon, QMessageBox::Information,
                                           QMessageBox::Warning, QMessageBox::Critical};
    QMessageBox::StandardButtons Buttons;
    for (const Box_Button Button : Buttons_Of(Front.Buttons)) Buttons |= Toolkit_Button(Button);
    Box_Id = Front.Id;
    // Over the dialog that the user is in, so that the keyboard goes back there.
    QWidget* const User_Is_In = QApplication::activeWindow();
    const bool In_Dialog = qobject_cast<QDialog*>(User_Is_In) && !qobject_cast<QMessageBox*>(User_Is_In);
    QWidget* const Below = In_Dialog ? User_Is_In : &Window;
    Box = new QMessageBox(Icons[static_cast<int>(Front.Icon)],
                          Front.Title.empty() ? QStringLiteral("Brinewright") : To_Screen(Front.Title),
                          To_Screen(Front.Text), Buttons, Below);
    Box->setTextFormat(Qt::PlainText);
    Box->setInformativeText(To_Screen(Front.Advice));
    connect(Box, &QMessageBox::finished, this, [this, Id = Box_Id](int Result) {
        Sim.Windows.Event([&] { Sim.Windows.Boxes.Answer(Id, Pressed_Button(Result)); });
        Q_EMIT Acted();
    });
    Box->setDefaultButton(Toolkit_Button(Buttons_Of(Front.Buttons).front()));
    Box->open();
    Box->activateWindow();
}

void Box_View::Follow_File_Dialogs() {
    const auto& Questions = Sim.Windows.File_Dialogs;
    if (Asking || Questions.empty()) return;
    const File_Dialog& Question = Questions.front();
    Asked_Id = Question.Id;
    Asking = new QFileDialog(&Window, To_Screen(Question.Title), QString::fromStdString(Question.Folder),
                             File_Filter(Question.Filter));
    Asking->setAttribute(Qt::WA_DeleteOnClose);
    Asking->setAcceptMode(Question.Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    Asking->setFileMode(Question.Save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    Asking->setDefaultSuffix(To_Screen(Question.Default_Extension).remove(QLatin1Char('.')));
    connect(Asking, &QFileDialog::finished, this, [this, Dialog = Asking.data(), Id = Asked_Id](int Result) {
        const std::string Path =
            Result == QDialog::Accepted ? Dialog->selectedFiles().value(0).toStdString() : std::string();
        Sim.Windows.Event([&] { Sim.Windows.Answer_File(Id, Path); });
        Q_EMIT Acted();
    });
    Asking->open();
}

} // namespace brinewright
