#include "analysis/numbering.h"

namespace kvelder {
namespace {

void add_restraint(Model& m, int node, int freedom)
{
    ++m.nrestr;
    m.restr(1, m.nrestr) = static_cast<std::int16_t>(node);
    m.restr(2, m.nrestr) = static_cast<std::int16_t>(freedom);
}

void add_support(Model& m, int node)
{
    ++m.nsup;
    m.sup_node(m.nsup) = static_cast<std::int16_t>(node);
}

// An end node restrains what its kind holds; a free end adds nothing.
void add_end_node(Model& m, int node)
{
    const char kind = m.support_kind(node);
    if (kind == kSimple) {
        add_support(m, node);
        add_restraint(m, node, 1);
    } else if (kind == kBuiltIn) {
        add_support(m, node);
        add_restraint(m, node, 1);
        add_restraint(m, node, 2);
    }
}

} // namespace

void member_ends(Model& m)
{
    for (int i = 1; i <= m.nf; ++i) {
        m.nodeA(i) = static_cast<std::int16_t>(i);
        m.nodeB(i) = static_cast<std::int16_t>(i + 1);
    }
}

void restraint_table(Model& m)
{
    m.nsup = 0;
    m.nrestr = 0;
    m.restr.fill(0);

    add_end_node(m, 1);
    // Inner nodes are simple supports whatever their kind field says.
    for (int n = 2; n <= m.nnodes - 1; ++n) {
        add_support(m, n);
        add_restraint(m, n, 1);
    }
    add_end_node(m, m.nnodes);
}

bool restraints_sufficient(const Model& m)
{
    return m.nrestr >= 2;
}

} // namespace kvelder
