// Every window of the table against tests/golden/windows/: what it consists of, what each operation of a user
// changes in it and in the state and in what it sends, how its sentences start, pause and start again, and
// what it makes of a state of garbage.

#include "tests/support/all_windows.hpp"
#include "tests/support/golden_text.hpp"
#include "tests/support/state_leaves.hpp"

#include <charconv>
#include <map>
#include <set>

namespace brinewright {
namespace {

std::string Shown(const std::string& Text) {
    std::string Out = "\"";
    for (const char C : Text) {
        constexpr const char* Digits = "0123456789abcdef";
        const auto Byte = static_cast<unsigned char>(C);
        if (Byte >= ' ' && Byte <= '~')
            Out += C;
        else
            Out += std::string("\\x") + Digits[Byte / 16] + Digits[Byte % 16];
    }
    return Out + '"';
}
std::string Shown(bool Value) { return Value ? "yes" : "no"; }
template <class Number>
std::string Shown(Number Value) {
    char Text[64];
    return {Text, std::to_chars(Text, Text + sizeof Text, Value).ptr};
}
std::string Shown(std::monostate) { return "-"; }

// The variables that user and sensors have to do with; the others are many, or of other tests.
template <class Leaf>
void Each_Variable(Simulator_State& S, const Leaf& At_Leaf) {
    static const std::set<std::string> Passed_Over{"Sky_Table",  "ARPA_Target", "Open_Form_List", "Transmit",
                                                   "Link_Panel", "Data_Folder", "Open_Form_Count"};
    Visit_State(S, [&](const char* Name, auto& Value) {
        if (!Passed_Over.contains(Name)) Each_Leaf(Name, Value, At_Leaf);
    });
}

using Facts = std::map<std::string, std::string>;
constexpr const char* Typed_Texts[] = {"12,34 x", "-5", "1e300", "north", "359.96", "60 01.5 s", "zz9", ""};
// The small ones are each one past the end of some list.
constexpr std::int16_t Garbage[] = {-1, 32767, -32768, 3, 4, 7, 15, 20, 21};
const std::map<Control_Kind, const char*> Kind_Names{{Control_Kind::Button, "Button"},
                                                     {Control_Kind::Check_Box, "Check_Box"},
                                                     {Control_Kind::Combo_Box, "Combo_Box"},
                                                     {Control_Kind::Text_Box, "Text_Box"},
                                                     {Control_Kind::Scroll_Bar, "Scroll_Bar"},
                                                     {Control_Kind::Option_Button, "Option_Button"},
                                                     {Control_Kind::Label, "Label"},
                                                     {Control_Kind::Frame, "Frame"},
                                                     {Control_Kind::Menu_Item, "Menu_Item"},
                                                     {Control_Kind::Grid, "Grid"},
                                                     {Control_Kind::Timer, "Timer"}};

struct Case {
    const Window_Class* Class;
    const char* Mode;
};

struct Windows : Every_Window, testing::TestWithParam<Case> {
    const Window_Class& Class = *GetParam().Class;
    const int Instance = std::min(Class.Count, std::string(GetParam().Mode) == "Ship" ? 2 : 1);
    std::string Out;

    Form* Its_Window() const { return brinewright::Open_Form(Sim, Class.Name, Instance); }
    // With something in every sensor that is not zero.
    void Begin() {
        Simulator_State S = Full_Setup(GetParam().Mode);
        S.Of<Shell_State>().Open_Form_Count = 0;
        S.Of<Gyro_State>().Gyro_HDG.Elements = {123.4F, 359.97F};
        S.Of<Log_State>().Log_Speed.Elements = {7.5F, -3.14F};
        S.Of<Navdata_State>().Magnetic_Variation = 2.5F;
        Start(S);
        World.Random.Seed(0);
        Take_Boxes();
    }
    // The windows from which others are opened stand first.
    Form* Opened() {
        const std::string Name = Class.Name;
        if (Name == "frmGNSS") {
            Sim.Windows.Event([&] { Open_Window(Sim, "frmPosition", Instance); });
            Click(Open_One<frmPosition>(Sim, Instance)->cmdGNSS);
        } else if (Name == "frmSetSOG") {
            Click(Open_One<frmShip>(Sim)->cmdSetSOG);
        } else {
            Sim.Windows.Event([&] { Open_Window(Sim, Class, Instance); });
        }
        return Its_Window();
    }
    Sensor_Form* Sensor() {
        return Class.Sentences.empty() ? nullptr : static_cast<Sensor_Form*>(Its_Window());
    }

    static std::string Value(const Control& C) {
        return std::visit([](const auto& V) { return Shown(V); }, C.Current());
    }
    Facts Look() {
        Facts Found;
        Each_Variable(Sim.State,
                      [&](const std::string& Path, auto& V) { Found["state " + Path] = Shown(V); });
        const Form* const F = Its_Window();
        Found["window"] = F ? Shown(F->Caption) + " " + Shown(F->Width) + " x " + Shown(F->Height) : "closed";
        if (!F) return Found;
        for (const Control* C : F->Controls) {
            std::string& Fact = Found[C->Path()] = Value(*C);
            if (C->Kind == Control_Kind::Timer) continue;
            const auto& Part = static_cast<const Visible_Control&>(*C);
            if (Part.Kind != Control_Kind::Label && !Part.Caption->empty())
                Fact += " " + Shown(*Part.Caption);
            if (!Part.Shown()) Fact += " hidden";
            if (!*Part.Enabled) Fact += " disabled";
            if (*Part.Fore_Colour != Ink::Normal)
                Fact += " ink " + Shown(static_cast<int>(*Part.Fore_Colour));
            if (Part.Kind == Control_Kind::Combo_Box)
                Fact += " of " + Shown(static_cast<const Combo_Box&>(Part).Items().size());
        }
        return Found;
    }
    void Write_Inventory(const Form& F) {
        Out += "== " + F.Path() + " tag " + F.Tag + " at " + Shown(F.Left) + "," + Shown(F.Top) + "\n";
        const Facts Found = Look();
        Out += Found.at("window") + "\n";
        for (const Control* C : F.Controls) {
            Out += std::string(Kind_Names.at(C->Kind)) + " " + C->Path() + " " + Found.at(C->Path());
            if (C->Kind == Control_Kind::Combo_Box)
                for (const auto& Item : static_cast<const Combo_Box&>(*C).Items())
                    Out += "|" + Shown(Item.Text);
            if (C->Kind == Control_Kind::Scroll_Bar) {
                const auto& Bar = static_cast<const Scroll_Bar&>(*C);
                Out +=
                    " from " + Shown(*Bar.Min) + " to " + Shown(*Bar.Max) + " by " + Shown(Bar.Large_Change);
            }
            if (C->Kind == Control_Kind::Grid)
                for (const auto& Title : static_cast<const Grid&>(*C).Columns) Out += "|" + Title;
            if (C->Kind != Control_Kind::Timer) {
                const std::string& Tip = *static_cast<const Visible_Control*>(C)->Tool_Tip;
                Out += " tip " + Shown(Tip);
            }
            Out += "\n";
        }
    }

    // What each sentence is now, from the same draws and at the same time.
    std::map<std::string, std::string> Sentences;
    void Write_Sentences() {
        Sensor_Form* const W = Sensor();
        if (!W) return;
        for (Sentence_Line& Line : W->Sentences.Lines) {
            World.Random.Seed(0);
            Set_Time_Of_Day(36000);
            Left.clear();
            Sim.Windows.Event([&] { Line.Clock.Tick(); });
            std::string Text;
            for (const auto& [Port, Sent] : Left) Text += " " + Shown(Port) + Shown(Sent);
            if (std::exchange(Sentences[Line.Row.Type], Text) != Text) Out += "    sends" + Text + "\n";
        }
    }
    template <class Work>
    void Do(const std::string& What, const Work& Its_Work) {
        Out += What + "\n";
        const Facts Before = Look();
        const std::int64_t Before_us = Now_us();
        Sim.Windows.Event(Its_Work);
        if (Now_us() != Before_us) Out += "    takes " + Shown(Now_us() - Before_us) + " us\n";
        for (const auto& [Path, Fact] : Look()) {
            const auto Was = Before.find(Path);
            if (Was == Before.end() || Was->second != Fact) Out += "    " + Path + " " + Fact + "\n";
        }
        for (const std::string& Box : Take_Boxes()) Out += "    box " + Shown(Box) + "\n";
        Write_Sentences();
        // Other windows go again, and this one stands again.
        const auto Open_Now = Sim.Windows.Forms;
        for (const auto& F : Open_Now)
            if (F->Kind != Form_Kind::Main && F->Name != Class.Name && F->Name != "frmShip" &&
                F->Name != "frmPosition" && F->Loaded) {
                Out += "    opens " + F->Path() + "\n";
                Close(*F);
            }
        if (!Its_Window()) Opened();
        Take_Boxes();
    }
    Control& Find(const std::string& Path) { return *Its_Window()->Find(Path); }
    void Set(const std::string& Path, const Control_Value& New) {
        if (!Sim.Windows.Usable(Find(Path))) return;
        Do(Path + " <- " + std::visit([](const auto& V) { return Shown(V); }, New), [&] {
            Sim.Windows.User_Set(Find(Path), New);
            Sim.Windows.Set_Focus(nullptr);
        });
    }
    void Operate(const std::string& Path) {
        const Control& C = Find(Path);
        if (!Sim.Windows.Usable(C) || C.Index % 8 > 1) return; // of many alike, two in eight
        const auto Push = [&](Mouse_Button B) {
            Do(Path + (B == Mouse_Button::Left ? " clicked" : " clicked right"), [&, B] {
                if (Sim.Windows.Usable(Find(Path))) Sim.Windows.User_Click(Find(Path), B);
            });
        };
        switch (C.Kind) {
        case Control_Kind::Label:
            if (!static_cast<const Label&>(C).Mouse_Down) return;
            Push(Mouse_Button::Left);
            return Push(Mouse_Button::Right);
        case Control_Kind::Check_Box: Push(Mouse_Button::Left); [[fallthrough]];
        case Control_Kind::Button:
        case Control_Kind::Menu_Item:
            if (Path == "mnuFileExit") return;
            [[fallthrough]];
        case Control_Kind::Option_Button: return Push(Mouse_Button::Left);
        case Control_Kind::Combo_Box: {
            const auto& List = static_cast<const Combo_Box&>(C);
            const std::int64_t Last = static_cast<std::int64_t>(List.Items().size()) - 1,
                               Was = List.List_Index();
            const bool Free = List.Free_Text;
            for (const std::int64_t I : std::set<std::int64_t>{Last, 1, Last / 2, 0})
                if (I >= 0 && I <= Last) Set(Path, I);
            if (Free)
                for (const char* Text : Typed_Texts) Set(Path, std::string(Text));
            if (Was >= 0) Set(Path, Was);
            return;
        }
        case Control_Kind::Text_Box: {
            if (static_cast<const Text_Box&>(C).Read_Only) return;
            const std::string Was = static_cast<const Text_Box&>(C).Text();
            for (const char* Text : Typed_Texts) Set(Path, std::string(Text));
            return Set(Path, Was);
        }
        case Control_Kind::Scroll_Bar: {
            const auto& Bar = static_cast<const Scroll_Bar&>(C);
            const std::int64_t Ends[] = {Bar.Min, Bar.Max, (Bar.Min + Bar.Max) / 3};
            for (const std::int64_t Place : Ends) Set(Path, Place);
            return;
        }
        default: return;
        }
    }
    std::vector<std::string> Paths() {
        std::vector<std::string> All;
        for (const Control* C : Its_Window()->Controls) All.push_back(C->Path());
        return All;
    }
    void Check(const char* What) {
        Expect_Golden("windows/" + std::string(Class.Name) + "_" + GetParam().Mode + "_" + What + ".txt",
                      Out);
    }
};

std::vector<Case> All_Cases() {
    static const Window_Class Main{.Name = "frmMain"}; // its menus
    std::vector<Case> Cases{{&Main, "Ship"}};
    for (const Window_Class* Class : All_Windows())
        for (const char* Mode : {"Ship", "Sensor"})
            if (Mode == std::string("Ship") || !Class->Sentences.empty()) Cases.push_back({Class, Mode});
    return Cases;
}
INSTANTIATE_TEST_SUITE_P(Table, Windows, testing::ValuesIn(All_Cases()), [](const auto& Info) {
    return std::string(Info.param.Class->Name) + "_" + Info.param.Mode;
});

TEST_P(Windows, Consist_Of_Their_Controls_And_Act_On_Them) {
    Begin();
    const Form* const F = Opened();
    if (!F) return;
    Write_Inventory(*F);
    if (Class.Name == std::string("frmProgress")) return Check("use");
    const std::vector<std::string> All = Paths();
    for (const std::string& Path : All) Operate(Path);
    // Once more with all boxes ticked: what one control does may hang on another.
    Out += "-- with all boxes ticked\n";
    for (const std::string& Path : All)
        if (Find(Path).Kind == Control_Kind::Check_Box && Sim.Windows.Usable(Find(Path))) Set(Path, true);
    for (const std::string& Path : All)
        if (Find(Path).Kind != Control_Kind::Check_Box && Find(Path).Kind != Control_Kind::Text_Box &&
            Instance == 1)
            Operate(Path);
    Check("use");
}

// All sentences at once: the stagger of the opening, PAUSE, and the order of START.
TEST_P(Windows, Start_And_Pause_Their_Sentences) {
    if (Class.Sentences.empty()) return;
    Begin();
    for (const Sentence_Row& Row : Class.Sentences) Row.Setting(Sim.State, Instance).Enabled = true;
    Set_Time_Of_Day(0); // where the 32-bit time of day is finest
    const std::int64_t Before_us = Now_us();
    Opened();
    const auto Write_Clocks = [&](const char* When) {
        Out += std::string(When) + " at " + Shown((Now_us() - Before_us) / 1000) + " ms\n";
        for (const Sentence_Line& Line : Sensor()->Sentences.Lines)
            Out += std::string("    ") + Line.Row.Type + " every " + Shown(Line.Clock.Interval_ms()) +
                   " ms, next in " +
                   Shown(Line.Clock.Interval_ms() > 0 ? std::llround(Line.Clock.Until_Tick_ms()) : 0) + "\n";
    };
    Write_Clocks("open");
    for (const char* Name : {"cmdStart", "cmdPause", "cmdStart"}) {
        Control* const Key = Sensor()->Find(Name);
        if (!Key || !Sim.Windows.Usable(*Key)) continue;
        Run_s(0.03);
        Click(*Key);
        Write_Clocks(Name);
    }
    Left.clear();
    Run_s(2.5);
    for (const auto& [Port, Text] : Left) Out += Shown(Port) + " " + Text.substr(0, Text.find(',')) + "\n";
    Check("clocks");
}

TEST_P(Windows, Make_The_Best_Of_Garbage) {
    if (Class.First_Form_Index == form_index::None) return;
    for (const std::int16_t Odd : Garbage) {
        Virtual_Simulator V;
        Simulator_State& S = V.Sim.State;
        Load_Default_Data(S, All_Windows());
        const auto Spoil = [&](const std::string&, auto& Value) {
            using T = std::remove_reference_t<decltype(Value)>;
            if constexpr (std::is_floating_point_v<T>)
                Value = Odd == -1 ? std::numeric_limits<T>::quiet_NaN()
                                  : static_cast<T>(Odd) * static_cast<T>(1e30);
            else if constexpr (std::is_same_v<T, std::int16_t>)
                Value = Odd;
            else if constexpr (std::is_same_v<T, std::string>)
                Value = "much too long";
        };
        const auto Spoil_Area = [&](auto& Area) {
            Visit_Record(Area, [&](const char* Name, auto& Value) {
                if (std::string(Name) != "Sky_Table") Each_Leaf(Name, Value, Spoil);
            });
        };
        Spoil_Area(S.Of<GNSS_State>()), Spoil_Area(S.Of<Gyro_State>()), Spoil_Area(S.Of<Log_State>());
        Spoil_Area(S.Of<Echo_State>()), Spoil_Area(S.Of<Wind_State>()), Spoil_Area(S.Of<Navdata_State>());
        S.Of<Shell_State>().Mode = GetParam().Mode;
        V.Use({18});
        if (Instance > 0)
            S.Of<Link_State>().Sensor_Table[Class.First_Form_Index + Instance - 1].Port =
                Odd == -1 ? 18 : Odd;
        for (const Sentence_Row& Row : Class.Sentences) Row.Setting(S, Instance).Enabled = true;
        V.Sim.Windows.Event([&] { Open_Window(V.Sim, Class, Instance); });
        V.Run_s(3);
        Out += "-- " + Shown(Odd) + "\n";
        for (const Sentence_Row& Row : Class.Sentences)
            Out +=
                std::string("    state ") + Row.Type + " " + Shown(Row.Setting(S, Instance).Interval) + "\n";
        const Form* const F = brinewright::Open_Form(V.Sim, Class.Name, Instance);
        if (!F) continue;
        for (const Control* C : F->Controls)
            if (C->Kind == Control_Kind::Combo_Box || C->Kind == Control_Kind::Scroll_Bar ||
                C->Kind == Control_Kind::Text_Box)
                Out += "    " + C->Path() + " " + Value(*C) + "\n";
        for (const auto& [Port, Text] : V.Left) Out += "    " + Shown(Port) + " " + Shown(Text) + "\n";
        for (const std::string& Box : V.Take_Boxes()) Out += "    box " + Shown(Box) + "\n";
    }
    Check("garbage");
}

} // namespace
} // namespace brinewright
