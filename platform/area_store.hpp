#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace brinewright {

std::size_t Next_Area_Number();

// The place of a type of records among all of them, the same for the whole run.
template <class Area>
inline const std::size_t Area_Number = Next_Area_Number();

// Holds one record of each type that somebody asks for, made at the first asking and from then on always the
// same one. So the state of a piece of equipment is declared with the equipment, and nobody else is compiled
// anew, or has a list to keep, when it grows. A copy copies all records.
class Area_Store {
  public:
    Area_Store() = default;
    Area_Store(const Area_Store& Other) { *this = Other; }
    Area_Store(Area_Store&&) = default;
    Area_Store& operator=(const Area_Store& Other) {
        if (this == &Other) return *this;
        Areas.clear();
        for (const auto& A : Other.Areas) Areas.push_back(A ? A->Copy() : nullptr);
        return *this;
    }
    Area_Store& operator=(Area_Store&&) = default;
    ~Area_Store() = default;

    template <class Area>
    Area& Of() {
        return Find<Area>();
    }
    template <class Area>
    const Area& Of() const {
        return Find<Area>();
    }

    // A field that a table names by its member pointer.
    template <class Area, class Field>
    Field& operator->*(Field Area::*Member) {
        return Of<Area>().*Member;
    }
    template <class Area, class Field>
    const Field& operator->*(Field Area::*Member) const {
        return Of<Area>().*Member;
    }

  private:
    struct Any_Area {
        virtual ~Any_Area() = default;
        virtual std::unique_ptr<Any_Area> Copy() const = 0;
    };
    template <class Area>
    struct Held_Area final : Any_Area {
        Area Record;
        std::unique_ptr<Any_Area> Copy() const override { return std::make_unique<Held_Area>(*this); }
    };

    template <class Area>
    Area& Find() const {
        const std::size_t Number = Area_Number<Area>;
        if (Number >= Areas.size()) Areas.resize(Number + 1);
        auto& Place = Areas[Number];
        if (!Place) Place = std::make_unique<Held_Area<Area>>();
        return static_cast<Held_Area<Area>&>(*Place).Record;
    }

    mutable std::vector<std::unique_ptr<Any_Area>> Areas; // by Area_Number; made by a reader too
};

} // namespace brinewright
