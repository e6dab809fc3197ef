#pragma once

#include "platform/platform.hpp"

#include <QSettings>

#include <string>

namespace brinewright {

// Application settings in a file, under its section "Settings". A file that cannot be read gives the
// defaults, and one that cannot be written loses what is set: neither is worth a message.
class Ini_Settings final : public App_Settings {
  public:
    explicit Ini_Settings(const std::string& Path);

    std::string Get(const std::string& Key, const std::string& Default) const override;
    void Set(const std::string& Key, const std::string& Value) override; // reaches the disk a little later
    void Flush();                                                        // now

  private:
    QSettings Stored;
};

// The user's folder for setups by the XDG rules, ending in "/": $XDG_DATA_HOME or ~/.local/share, and below
// it Tidewerk/Brinewright/.
std::string Default_Data_Folder();

// The file of the application settings: $XDG_CONFIG_HOME or ~/.config, and below it Tidewerk/Brinewright.ini.
std::string Default_Settings_File();

// The file of the application settings in a data folder that was chosen by option, with or without "/" at its
// end. It has a name of its own, since the setup is called Brinewright.ini there.
std::string Settings_File_In(const std::string& Data_Folder);

} // namespace brinewright
