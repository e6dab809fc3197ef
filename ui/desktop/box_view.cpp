#include "ui/desktop/box_view.hpp"

#include "ui/binder/form_view.hpp"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

namespace brinewright {

namespace {

// The filter of a file dialog as the program tells it, "Name|*.ini", in the toolkit's form.
QString File_Filter(const std::string& Filter) {
    const QStringList Parts = To_Screen(Filter).split(QLatin1Char('|'));
    return Parts.size() < 2 ? QString()
                            : Parts[0].section(QStringLiteral(" ("), 0, 0) + " (" + Parts[1] + ")";
}

} // namespace

Box_View::Box_View(Simulator& Its_Simulator, QWidget& Its_Window)
    : QObject(&Its_Window), Sim(Its_Simulator), Window(Its_Window) {}

void Box_View::Follow() {
    Follow_Boxes();
    Follow_File_Dialogs();
}

void Box_View::Follow_Boxes() {
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
    QWidget* const Below = In_Dialog ? User_Is_In : &Window;
    Box = new QMessageBox(Icons[static_cast<int>(Front.Icon)],
                          Front.Title.empty() ? QStringLiteral("Brinewright") : To_Screen(Front.Title),
                          To_Screen(Front.Text), QMessageBox::Ok | Cancel, Below);
    Box->setTextFormat(Qt::PlainText);
    Box->setInformativeText(To_Screen(Front.Advice));
    connect(Box, &QMessageBox::finished, this, [this, Id = Box_Id] {
        Sim.Windows.Event([&] { Sim.Windows.Boxes.Answer(Id); });
        Q_EMIT Acted();
    });
    Box->setDefaultButton(QMessageBox::Ok);
    Box->open();
    Box->activateWindow();
}

// One that automation has answered goes away.
void Box_View::Follow_File_Dialogs() {
    const auto& Questions = Sim.Windows.File_Dialogs;
    if (!Questions.empty() && Questions.front().Id == Asked_Id) return;
    if (Asking) {
        Asking->disconnect(this);
        Asking->close();
    }
    if (Questions.empty()) return;
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
