#include "shell/layouts.hpp"

namespace brinewright {

namespace {

struct Layout_Row {
    const char* Form_Name;
    Layout_Function Lay_Out;
};

constexpr Layout_Row Layouts[] = {
    {"frmGyro", Lay_Out_Gyro},
};

} // namespace

Layout_Function Find_Layout(std::string_view Form_Name) {
    for (const Layout_Row& Row : Layouts)
        if (Form_Name == Row.Form_Name) return Row.Lay_Out;
    return nullptr;
}

} // namespace brinewright
