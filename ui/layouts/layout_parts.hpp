#pragma once

#include "shell/kit/layout.hpp"
#include "ui/form_view.hpp"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>

namespace brinewright {

// Rows and columns in the one rhythm.
QVBoxLayout* Column_In(QWidget* Parent, int Margin = rhythm::Margin);
QHBoxLayout* Row();

// A caption, dim; for what is no control of the form.
QLabel* Caption(const QString& Text);

// Rows of caption, field and unit: captions right-aligned to their fields, units left-aligned behind them.
class Field_Grid {
  public:
    explicit Field_Grid(int Its_Pairs = 1); // so many fields stand side by side
    void Add(QWidget* Caption, QWidget* Field, QWidget* Unit = nullptr);
    void Add(const QString& Text, QWidget* Field, const QString& Unit_Text = {});
    QGridLayout* Layout() const { return Grid; }

  private:
    QGridLayout* Grid;
    int Pairs;
    int Count = 0;
};

// A box with a title around Contents; the title may be a control's.
QGroupBox* Boxed(QGroupBox* Box, QLayout* Contents, int Side_Margin = rhythm::Margin);
QGroupBox* Boxed(const QString& Title, QLayout* Contents);

// Gives W a property that the style knows, "role" or "state".
void Show_State(QWidget* W, const char* Property, const char* Value);

// OK and Cancel and their like, at the right end of a row.
QHBoxLayout* Buttons_Row(std::initializer_list<QPushButton*> Buttons);

void Lay_Out_Monitor(Form_View& View, Form& Shown);
void Lay_Out_Extended_Monitor(Form_View& View, Form& Shown);
void Lay_Out_TCPIP(Form_View& View, Form& Shown);
void Lay_Out_IEC61162(Form_View& View, Form& Shown);
void Lay_Out_Geo_Format(Form_View& View, Form& Shown);
void Lay_Out_Position(Form_View& View, Form& Shown);
void Lay_Out_GNSS_Configuration(Form_View& View, Form& Shown);
void Lay_Out_Setup(Form_View& View, Form& Shown);
void Lay_Out_Progress(Form_View& View, Form& Shown);
void Lay_Out_Comport_Info(Form_View& View, Form& Shown);
void Lay_Out_Traffic(Form_View& View, Form& Shown);
void Lay_Out_Log(Form_View& View, Form& Shown);
void Lay_Out_Echosounder(Form_View& View, Form& Shown);
void Lay_Out_Wind(Form_View& View, Form& Shown);
void Lay_Out_Ship(Form_View& View, Form& Shown);
void Lay_Out_Ship_Setup(Form_View& View, Form& Shown);
void Lay_Out_Set_SOG(Form_View& View, Form& Shown);

} // namespace brinewright
