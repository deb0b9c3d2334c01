#include "orbis/factory/descriptors/Invoker.hpp"

#include "orbis/factory/descriptors/ParameterNamer.hpp"

#include "orbis/COSMethodSignature.hpp"
#include "orbis/COSNameID.hpp"

#include <algorithm>
#include <cstring>
#include <initializer_list>

namespace orbis::factory::impl {

namespace {

using T = char const*;
using Signature = COSMethodSignaturePtr;

// The interface fixes that inputs from the eleventh on share one name.
constexpr unsigned int lastNamedInput = 11;

void fill(COSMethodSignature& signature, T names, T output, T self, std::initializer_list<T> inputs)
{
    ParameterNamer const namer(names);
    if (std::strcmp(output, "void") != 0)
        signature.addOutput(COSNameID(output), namer.getOutputParameter(1));
    if (self)
        signature.addInput(COSNameID(self), "this");
    unsigned int position = 0;
    for (T const input : inputs)
        signature.addInput(COSNameID(input), namer.getInputParameter(std::min(++position, lastNamedInput)));
}

void create(T names, T output, T self, std::initializer_list<T> inputs, Signature& signature)
{
    if (signature)
        return;
    signature = COSMethodSignature::createMethodSignature();
    try {
        fill(*signature, names, output, self, inputs);
    } catch (...) {
        signature = nullptr;
        throw;
    }
}

} // namespace

void Invoker::setForcedMember(bool forced)
{
    forcedMember = forced;
}

void Invoker::setTarget(Callable const& callable)
{
    target = callable;
}

void Invoker::createSignature(T names, T output, T self, Signature& to)
{
    create(names, output, self, {}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, Signature& to)
{
    create(names, output, self, {a}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, Signature& to)
{
    create(names, output, self, {a, b}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, Signature& to)
{
    create(names, output, self, {a, b, c}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, Signature& to)
{
    create(names, output, self, {a, b, c, d}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, Signature& to)
{
    create(names, output, self, {a, b, c, d, e}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j,
                              Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k,
                              Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              T m, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l, m}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              T m, T n, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l, m, n}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              T m, T n, T o, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l, m, n, o}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              T m, T n, T o, T p, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              T m, T n, T o, T p, T q, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              T m, T n, T o, T p, T q, T r, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              T m, T n, T o, T p, T q, T r, T s, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s}, to);
}

void Invoker::createSignature(T names, T output, T self, T a, T b, T c, T d, T e, T f, T g, T h, T i, T j, T k, T l,
                              T m, T n, T o, T p, T q, T r, T s, T t, Signature& to)
{
    create(names, output, self, {a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t}, to);
}

} // namespace orbis::factory::impl
