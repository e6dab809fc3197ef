#include "sensors/sensor_parts.hpp"

#include "ownship/angles.hpp"
#include "shell/control_text.hpp"
#include "shell/simulator.hpp"

namespace brinewright {

double Signed_Draw(Simulator& Sim) { return 2 * (Sim.Services.Random.Draw() - 0.5); }

bool Wrap_Direction_Bar(Scroll_Bar& Bar) {
    if (Bar.Value() == Bar.Max) {
        Bar.Set_Value(0);
        return true;
    }
    if (Bar.Value() == Bar.Min) {
        Bar.Set_Value(Bar.Max - 1);
        return true;
    }
    return false;
}

int Direction_Place(const Scroll_Bar& Bar, double Angle_deg) {
    const int Circle = Bar.Max;
    return (Bar_Place(Bar, Angle_deg, Bar_Steps) + Circle) % Circle;
}

float Bar_Value(const Scroll_Bar& Bar) { return static_cast<float>(Bar.Value()) / Bar_Steps; }

float Sum_Direction(double A_deg, double B_deg) {
    const auto Sum = static_cast<float>(Add_Degrees(A_deg, B_deg));
    return Sum < 360 ? Sum : 0;
}

void Hide(std::initializer_list<Visible_Control*> Parts) {
    for (Visible_Control* Part : Parts) Part->Visible = false;
}

} // namespace brinewright
