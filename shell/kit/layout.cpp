#include "shell/kit/layout.hpp"

#include "platform/marked_text.hpp"

#include <utility>

namespace brinewright {

namespace {

constexpr int Least_Key_Width = 88;

Layout Whole(std::vector<Layout> Parts, int Margin, int Spacing) {
    return Layout(layout::Line{false, Spacing, std::array{Margin, Margin, Margin, Margin}}, std::move(Parts));
}

Layout Boxed(layout::Framed Manner, Layout Contents) {
    std::vector<Layout> Inside;
    Inside.push_back(std::move(Contents));
    return Layout(std::move(Manner), std::move(Inside));
}

Layout Of(Visible_Control& C, layout::Kind Kind) {
    Layout New(std::move(Kind));
    New.Part = &C;
    return New;
}

} // namespace

Layout& Layout::Spaced(int Spacing) {
    std::get<layout::Line>(What).Spacing = Spacing;
    return *this;
}

Layout& Layout::Margins(int Left_Margin, int Top_Margin, int Right_Margin, int Bottom_Margin) {
    std::get<layout::Line>(What).Margins = {Left_Margin, Top_Margin, Right_Margin, Bottom_Margin};
    return *this;
}

Layout Window(std::vector<Layout> Parts) { return Whole(std::move(Parts), rhythm::Gap, rhythm::Base); }
Layout Dialog(std::vector<Layout> Parts) { return Whole(std::move(Parts), rhythm::Margin, rhythm::Gap); }

Layout Column(std::vector<Layout> Parts) {
    return Layout(layout::Line{false, rhythm::Base, {}}, std::move(Parts));
}
Layout Row(std::vector<Layout> Parts) {
    return Layout(layout::Line{true, rhythm::Gap, {}}, std::move(Parts));
}
Layout Stretch(int Share) { return Layout(layout::Room{}).Wide(Share); }

Layout At(int Row, int Column, Layout Part, int Rows, int Columns) {
    Part.How.Cell = {Row, Column, Rows, Columns};
    return Part;
}
Layout Cells(std::vector<Layout> Parts, layout::Raster Manner) {
    return Layout(std::move(Manner), std::move(Parts));
}

Layout Cells_By_Lines(int Columns, std::vector<Layout> Parts, layout::Raster Manner) {
    int Place = 0;
    for (Layout& Part : Parts) {
        Part.How.Cell = {Place / Columns, Place % Columns};
        ++Place;
    }
    return Cells(std::move(Parts), std::move(Manner));
}

Layout Box(Frame& Around, Layout Contents, int Side_Margin) {
    Layout New = Boxed({{}, Side_Margin}, std::move(Contents));
    New.Part = &Around;
    return New;
}
Layout Box(std::string Title, Layout Contents, int Side_Margin) {
    return Boxed({std::move(Title), Side_Margin}, std::move(Contents));
}
Layout Bare(Frame& Around, Layout Contents) {
    Layout New = Boxed({{}, 0, true}, std::move(Contents));
    New.Part = &Around;
    return New;
}

Layout Place(Visible_Control& C, Role As) {
    Layout New(C);
    New.How.As = As;
    return New;
}
Layout Dim(Label& C) { return Place(C, Role::Dim); }
Layout Readout(Label& Value, int Pixels, layout::Measure Widest) {
    return Place(Value, Role::Readout).Figures(Pixels).Least_Width(std::move(Widest));
}
Layout Readout(Label& Value, int Pixels, layout::Measure Widest, Layout Unit) {
    // Beside the unit, however many figures they are.
    return Row({Readout(Value, Pixels, std::move(Widest)).Flush_Right(), Unit.Left().Bottom(), Stretch()});
}
Layout Text(std::string Caption, Role As) { return Layout(layout::Words{{std::move(Caption), As}, {}}); }
Layout Text(std::function<layout::Said()> Read) { return Layout(layout::Words{{}, std::move(Read)}); }

Layout Fields(std::vector<Field> Rows, int Pairs) {
    layout::Raster Manner{.Across = rhythm::Gap, .Down = rhythm::Base + 2};
    std::vector<Layout> Parts;
    int Count = 0;
    for (Field& F : Rows) {
        const int Line = Count / Pairs;
        const int First = Count % Pairs * 4; // caption, field, unit, and a gap before the next pair
        ++Count;
        Parts.push_back(At(Line, First, Dim(F.Title).Right().Middle()));
        Parts.push_back(At(Line, First + 1, std::move(F.Part), 1, F.Unit ? 1 : 2));
        if (F.Unit) Parts.push_back(At(Line, First + 2, Dim(*F.Unit).Left().Middle()));
    }
    for (int Pair = 1; Pair < Pairs; ++Pair) Manner.Gap_Columns.push_back(Pair * 4 - 1);
    return Cells(std::move(Parts), std::move(Manner));
}

Layout Buttons(std::vector<Layout> Keys) {
    std::vector<Layout> Parts{Stretch()};
    for (Layout& Key : Keys) Parts.push_back(std::move(Key.Least_Width(Least_Key_Width)));
    return Row(std::move(Parts));
}

Layout Halves(std::vector<Layout> Parts) { return Layout(layout::Split{}, std::move(Parts)); }
Layout Pane(Text_Box& Sentences, int Lines) { return Of(Sentences, layout::Pane{Lines}); }
Layout Marked(Marked_Text& Sentence, int Lines) { return Of(Sentence, layout::Marked{Lines}); }
Layout Listing(Grid& Rows, std::vector<std::string> Widest) {
    return Of(Rows, layout::Listing{std::move(Widest)});
}

Layout Lying(Scroll_Bar& Bar, layout::Steps Scale) { return Of(Bar, layout::Scaled{true, Scale}); }
Layout Standing(Scroll_Bar& Bar, layout::Steps Scale) { return Of(Bar, layout::Scaled{false, Scale}); }
Layout Label_Scale(const Slider& Of, std::vector<Layout> Labels, std::vector<double> Shares) {
    return Layout(layout::Label_Scale{&Of, std::move(Shares)}, std::move(Labels));
}
Layout Painted(layout::Reading Read, int Width, int Height, std::string Tip) {
    return Layout(layout::Instrument{std::move(Read), Width, Height, std::move(Tip)});
}

Layout Progress(std::function<int()> Percent) { return Layout(layout::Progress{std::move(Percent)}); }

void For_Each_Placed(const Layout& Tree, const std::function<void(const Visible_Control&)>& Look) {
    if (Tree.Part) Look(*Tree.Part);
    for (const Layout& Part : Tree.Inside) For_Each_Placed(Part, Look);
}

} // namespace brinewright
