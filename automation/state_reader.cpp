#include "automation/state_reader.hpp"

#include "all_state.hpp"
#include "automation/rpc_error.hpp"

#include <nlohmann/json.hpp>

#include <charconv>
#include <concepts>

namespace brinewright {

// What there is to know of a type of the state, without the type: so that paths are walked by one plain
// function.
struct State_Shape {
    const char* Kind;
    Json (*Read)(void* Where);
    State_Place (*Element)(void* Where, int Subscript);                      // null unless a table
    std::optional<State_Place> (*Field)(void* Where, std::string_view Name); // null unless a record
    int First = 0, Last = 0;                                                 // of a table
};

namespace {

template <class T>
State_Place Place_Of(T& Variable);

struct Any_Visitor {
    template <class T>
    void operator()(const char*, T&) const {}
};

template <class T>
concept Record = requires(T& R, Any_Visitor V) {
    Visit_Record(R, V);
};

template <class T>
struct Shape_Maker {
    static_assert(std::integral<T> || std::floating_point<T> || std::same_as<T, std::string> || Record<T>,
                  "State holds numbers, texts, tables and records");

    static Json Read(void* Where) {
        T& Variable = *static_cast<T*>(Where);
        if constexpr (Record<T>) {
            Json Fields = Json::object();
            Visit_Record(Variable,
                         [&](const char* Name, auto& Field) { Fields[Name] = State_Json(Place_Of(Field)); });
            return Fields;
        } else if constexpr (std::same_as<T, std::string>) {
            return Text_Json(Variable);
        } else if constexpr (std::floating_point<T>) {
            return Number_Json(Variable);
        } else {
            return Variable;
        }
    }

    static std::optional<State_Place> Field(void* Where, std::string_view Wanted) {
        std::optional<State_Place> Found;
        if constexpr (Record<T>) {
            Visit_Record(*static_cast<T*>(Where), [&](std::string_view Name, auto& Its_Field) {
                if (Name == Wanted) Found = Place_Of(Its_Field);
            });
        }
        return Found;
    }

    static constexpr const char* Kind() {
        if (Record<T>) return "record";
        if (std::same_as<T, bool>) return "boolean";
        return std::same_as<T, std::string> ? "text" : "number";
    }

    static constexpr State_Shape Shape{Kind(), Read, nullptr, Record<T> ? Field : nullptr};
};

template <class T, int First, int Last>
struct Shape_Maker<Table<T, First, Last>> {
    static Json Read(void* Where) {
        auto& Whole = *static_cast<Table<T, First, Last>*>(Where);
        Json Elements = Json::object();
        for (int I = First; I <= Last; ++I) Elements[std::to_string(I)] = State_Json(Place_Of(Whole[I]));
        return Elements;
    }
    static State_Place Element(void* Where, int Subscript) {
        return Place_Of((*static_cast<Table<T, First, Last>*>(Where))[Subscript]);
    }
    static constexpr State_Shape Shape{"table", Read, Element, nullptr, First, Last};
};

template <class T>
State_Place Place_Of(T& Variable) {
    return {&Variable, &Shape_Maker<T>::Shape};
}

[[noreturn]] void Unknown(std::string_view Path, const std::string& Why) {
    throw Rpc_Error{rpc_code::Unknown_Path, "state." + std::string(Path) + ": " + Why};
}

// Takes "[n]" off the front of Rest.
State_Place Take_Subscript(State_Place Place, std::string_view Path, std::string_view& Rest) {
    int Subscript = 0;
    const auto [End, Failure] = std::from_chars(Rest.data() + 1, Rest.data() + Rest.size(), Subscript);
    if (Failure != std::errc() || End == Rest.data() + Rest.size() || *End != ']')
        Unknown(Path, "a subscript is a number in brackets");
    if (!Place.Shape->Element) Unknown(Path, "this is no table");
    if (Subscript < Place.Shape->First || Subscript > Place.Shape->Last)
        Unknown(Path, "the subscripts run from " + std::to_string(Place.Shape->First) + " to " +
                          std::to_string(Place.Shape->Last));
    Rest.remove_prefix(static_cast<std::size_t>(End - Rest.data()) + 1);
    return Place.Shape->Element(Place.Where, Subscript);
}

std::string_view Take_Name(std::string_view& Rest) {
    const std::string_view Name = Rest.substr(0, Rest.find_first_of(".["));
    Rest.remove_prefix(Name.size());
    return Name;
}

} // namespace

State_Place Find_State(Simulator_State& State, std::string_view Path) {
    std::string_view Rest = Path;
    const std::string_view Name = Take_Name(Rest);
    State_Place Place;
    Visit_State(State, [&](std::string_view Variable_Name, auto& Variable) {
        if (Variable_Name == Name) Place = Place_Of(Variable);
    });
    if (!Place.Where) Unknown(Path, "there is no such variable");
    while (!Rest.empty()) {
        if (Rest.front() == '[') {
            Place = Take_Subscript(Place, Path, Rest);
            continue;
        }
        if (Rest.front() != '.') Unknown(Path, "[ or . is wanted behind a subscript");
        Rest.remove_prefix(1);
        const std::string_view Field_Name = Take_Name(Rest);
        const auto Field = Place.Shape->Field ? Place.Shape->Field(Place.Where, Field_Name) : std::nullopt;
        if (!Field) Unknown(Path, "there is no such field");
        Place = *Field;
    }
    return Place;
}

Json State_Json(const State_Place& Place) { return Place.Shape->Read(Place.Where); }

Json State_List(Simulator_State& State) {
    Json All = Json::array();
    Visit_State(State, [&](const char* Name, auto& Variable) {
        const State_Shape& Shape = *Place_Of(Variable).Shape;
        Json Row{{"path", std::string("state.") + Name}, {"kind", Shape.Kind}};
        if (Shape.Element) {
            Row["first"] = Shape.First;
            Row["last"] = Shape.Last;
        }
        All.push_back(std::move(Row));
    });
    return All;
}

} // namespace brinewright
