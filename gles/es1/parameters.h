#ifndef VARNEL_GLES_ES1_PARAMETERS_H
#define VARNEL_GLES_ES1_PARAMETERS_H

namespace gles::es1 {

/// The most values that a parameter of the commands below has.
constexpr int mostValues = 16;

/// How many values a light, material, light model, fog, texture or point parameter has.
int parameterCount(unsigned name);

/// Whether a parameter's value is an enumerant or a boolean, which fixed-point commands take and
/// answer as it is.
bool isEnumerated(unsigned name);

/// How many values `glGet*` has for a name. For the list of compressed formats the driver is asked.
int queryCount(unsigned name);

}  // namespace gles::es1

#endif  // VARNEL_GLES_ES1_PARAMETERS_H
