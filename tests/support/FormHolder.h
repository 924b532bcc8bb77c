#pragma once

#include "EveryScreen.h"

#include <DisplayAPI/Form.h>
#include <DisplayAPI/ItemPrivateIfc.h>

#include <algorithm>
#include <memory>
#include <vector>

/// A form for fields of a kind, which EveryRowTest hands over and takes back.
template <typename Field>
Holder<DisplayAPI::Form, Field> formHolder()
{
    using DisplayAPI::Form;
    return {
        [] { return std::make_unique<Form>(Form::Proportion0); },
        [](Form& form, Field& field) { form.append(&field); },
        [](Form& form, Field& field) {
            const std::vector<DisplayAPI::Item*> items = form.getItems();
            const auto place = std::find(items.begin(), items.end(), &field);
            form.removeItem(static_cast<unsigned int>(place - items.begin()));
        },
    };
}
