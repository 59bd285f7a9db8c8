#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

namespace vexo::hox::qt::ui {

/// How lists learn which of their widgets hide all that lies below them: each class that does so
/// without saying it to the toolkit has one rule, made with its first widget.
class CoverRule
{
public:
    using Question = bool (*)(const QWidget &);

    /// From now on, for widgets of the class \a type and those derived from it.
    CoverRule(const QMetaObject &type, Question covers_all)
        : m_type(type)
        , m_covers_all(covers_all)
        , m_next(first_rule)
    {
        first_rule = this;
    }

    /// By the rule of its class; without one a widget covers all if the toolkit takes it for
    /// opaque. Whether it is shown, masked or seen through an effect is not asked.
    static bool coversAll(const QWidget &widget)
    {
        for (const QMetaObject *type = widget.metaObject(); type; type = type->superClass()) {
            for (const CoverRule *rule = first_rule; rule; rule = rule->m_next) {
                if (&rule->m_type == type)
                    return rule->m_covers_all(widget);
            }
        }
        return widget.testAttribute(Qt::WA_OpaquePaintEvent);
    }

private:
    Q_DISABLE_COPY(CoverRule)

    inline static const CoverRule *first_rule = nullptr;

    const QMetaObject &m_type;
    const Question m_covers_all;
    const CoverRule *const m_next;
};

} // namespace vexo::hox::qt::ui
