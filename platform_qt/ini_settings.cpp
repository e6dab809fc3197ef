#include "platform_qt/ini_settings.hpp"

#include <QFile>
#include <QStringList>

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace brinewright {

namespace {

QString To_Qt(const std::string& Latin1) {
    return QString::fromLatin1(Latin1.data(), static_cast<qsizetype>(Latin1.size()));
}

std::string Home_Folder() {
    const char* Home = std::getenv("HOME");
    if (Home != nullptr && *Home == '/') return Home;
    const passwd* User = ::getpwuid(::getuid());
    return User != nullptr && User->pw_dir != nullptr ? User->pw_dir : "/tmp";
}

// A relative path in such a variable is to be ignored.
std::string XDG_Folder(const char* Variable, const char* Default_Below_Home) {
    const char* Value = std::getenv(Variable);
    if (Value != nullptr && *Value == '/') return Value;
    return Home_Folder() + Default_Below_Home;
}

} // namespace

Ini_Settings::Ini_Settings(const std::string& Path)
    : Stored(QFile::decodeName(Path.c_str()), QSettings::IniFormat) {
    Stored.beginGroup(QStringLiteral("Settings"));
}

std::string Ini_Settings::Get(const std::string& Key, const std::string& Default) const {
    const QVariant Value = Stored.value(To_Qt(Key));
    if (!Value.isValid()) return Default;
    // A text with a comma that was typed into the file without quotation marks is read as a list.
    const QString Text = Value.typeId() == QMetaType::QStringList
                             ? Value.toStringList().join(QStringLiteral(", "))
                             : Value.toString();
    return Text.toLatin1().toStdString();
}

void Ini_Settings::Set(const std::string& Key, const std::string& Value) {
    Stored.setValue(To_Qt(Key), To_Qt(Value));
}

void Ini_Settings::Flush() { Stored.sync(); }

std::string Default_Data_Folder() {
    return XDG_Folder("XDG_DATA_HOME", "/.local/share") + "/Tidewerk/Brinewright/";
}

std::string Default_Settings_File() {
    return XDG_Folder("XDG_CONFIG_HOME", "/.config") + "/Tidewerk/Brinewright.ini";
}

std::string Settings_File_In(const std::string& Data_Folder) {
    return Data_Folder + (Data_Folder.ends_with('/') ? "" : "/") + "application-settings.ini";
}

} // namespace brinewright
