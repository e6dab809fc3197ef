// What is painted: scales beside sliders, the time to the next sentence, instruments.

#include "ui/instruments/attitude_indicator.hpp"
#include "ui/instruments/compass_rose.hpp"
#include "ui/instruments/countdown_bar.hpp"
#include "ui/instruments/rate_of_turn_bar.hpp"
#include "ui/instruments/sky_plot.hpp"
#include "ui/instruments/slider_scale.hpp"
#include "ui/instruments/wind_dial.hpp"
#include "ui/layout/layout_builder.hpp"

#include <QBoxLayout>
#include <QProgressBar>

#include <algorithm>
#include <cstdlib>

namespace brinewright {

namespace {

constexpr int Lying_Thickness = 22, Standing_Thickness = 34, Label_Thickness = 26;

Slider_Scale_Reading Read_Scale(const Scroll_Bar& Bar, const layout::Scaled& Kind) {
    // Bars that lie rise to the right; those that stand have their Min at the top.
    const int Least = std::min<int>(Bar.Min, Bar.Max), Most = std::max<int>(Bar.Min, Bar.Max);
    const int First = Kind.Lies ? Least : *Bar.Min, Last = Kind.Lies ? Most : *Bar.Max;
    const auto Share = [&](int Value) { return static_cast<double>(Value - First) / (Last - First); };
    const layout::Steps& Steps = Kind.Scale;
    Slider_Scale_Reading Scale{Kind.Lies ? Qt::Horizontal : Qt::Vertical,
                               static_cast<double>(Steps.Tick) / (Most - Least),
                               Share(0),
                               {}};
    for (int Value = Least; Value <= Most; ++Value)
        if (Value % Steps.Figure == 0)
            Scale.Figures.push_back(
                {Share(Value), QString::number((Steps.Unsigned ? std::abs(Value) : Value) / Steps.Per_Unit)});
    std::sort(Scale.Figures.begin(), Scale.Figures.end(),
              [](const auto& A, const auto& B) { return A.Share < B.Share; });
    return Scale;
}

Slider_Scale_Reading Read_Ticks(const Slider& Bar) {
    const int Range = *Bar.Max - *Bar.Min;
    if (Range <= 0) return {Qt::Horizontal, 1, 0.5, {}};
    return {Qt::Horizontal,
            static_cast<double>(Bar.Tick_Step) / Range,
            static_cast<double>(-*Bar.Min) / Range,
            {}};
}

template <class Painted_Widget>
Painted_Widget* Looking(Form_View& View, Painted_Widget* New) {
    View.When_Shown([New] { New->Look(); });
    return New;
}

void Paint(QPainter& P, const QRectF& Place, const Attitude_Reading& R, Palette_Kind K) {
    Paint_Attitude(P, Place, R, K);
}
void Paint(QPainter& P, const QRectF& Place, const Compass_Reading& R, Palette_Kind K) {
    Paint_Compass_Rose(P, Place, R, K);
}
void Paint(QPainter& P, const QRectF& Place, const Turn_Reading& R, Palette_Kind K) {
    Paint_Rate_Of_Turn(P, Place, R, K);
}
void Paint(QPainter& P, const QRectF& Place, const Wind_Reading& R, Palette_Kind K) {
    Paint_Wind_Dial(P, Place, R, K);
}
void Paint(QPainter& P, const QRectF& Place, const Sky_Reading& R, Palette_Kind K) {
    Paint_Sky(P, Place, R, K);
}

} // namespace

Built Make(Form_View& View, const Layout& Node, const layout::Scaled& Kind) {
    const auto Direction = Kind.Lies ? Qt::Horizontal : Qt::Vertical;
    auto& Bar = static_cast<Scroll_Bar&>(*Node.Part);
    auto* Both = new QBoxLayout(Kind.Lies ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    Both->setSpacing(0);
    QSlider* Slides = View.Make(Bar, Direction);
    Both->addWidget(Slides);
    Both->addWidget(Looking(View, new Slider_Scale(View.Colours, Direction,
                                                   Kind.Lies ? Lying_Thickness : Standing_Thickness,
                                                   [&Bar, Kind] { return Read_Scale(Bar, Kind); })));
    return {Both, Slides};
}

Built Make(Form_View& View, const Layout& Node, const layout::Label_Scale& Kind) {
    std::vector<Slider_Scale::Placed_Label> Labels;
    for (std::size_t I = 0; I < Node.Inside.size(); ++I)
        Labels.push_back({Kind.Shares.at(I), Make(View, Node.Inside[I]).Widget});
    return Looking(View, new Slider_Scale(
                             View.Colours, Qt::Horizontal, Label_Thickness,
                             [Bar = Kind.Of] { return Read_Ticks(*Bar); }, std::move(Labels)));
}

Built Make(Form_View& View, const Layout&, const layout::Countdown& Kind) {
    return new Countdown_Bar(View.Colours, View.Shown_Form(), *Kind.Watched, Kind.Counts);
}

Built Make(Form_View& View, const Layout&, const layout::Instrument& Kind) {
    return std::visit(
        [&]<class Values>(const std::function<Values()>& Read) -> Built {
            return Looking(View, new Instrument<Values>(View.Colours, Paint, Read,
                                                        QSize(Kind.Width, Kind.Height), To_Screen(Kind.Tip)));
        },
        Kind.Read);
}

Built Make(Form_View& View, const Layout&, const layout::Progress& Kind) {
    auto* New = new QProgressBar;
    New->setRange(0, 100);
    New->setTextVisible(false);
    View.When_Shown([Percent = Kind.Percent, New] { New->setValue(Percent()); });
    return New;
}

} // namespace brinewright
