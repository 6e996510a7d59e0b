#include "forms/model/origin.h"

#include "forms/model/form.h"

namespace tavrin::forms {

std::string Origin::HandlerName() const {
    if (form == nullptr) return {};
    std::string name = form->Name() + ".";
    name.append(control != nullptr ? control->QualifiedName() : "Form").append("_");
    return name.append(event.name);
}

std::string Origin::Window() const {
    return form != nullptr ? form->Caption() : std::string();
}

std::string Origin::Action() const {
    if (form == nullptr || control == nullptr) return std::string(event.words);
    const std::string spoken = control->Accessible().name;
    std::string action = spoken.empty() ? control->QualifiedName() : spoken;
    return action.append(" (").append(event.words).append(")");
}

}  // namespace tavrin::forms
