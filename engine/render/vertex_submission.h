#ifndef VARNEL_ENGINE_RENDER_VERTEX_SUBMISSION_H
#define VARNEL_ENGINE_RENDER_VERTEX_SUBMISSION_H

namespace varnel_m3g {

class Appearance;
class IndexBuffer;
class VertexBuffer;

/// An alpha factor below this fades; from here on it counts as 1.
constexpr float opaqueAlpha = 0.999f;

/// Points the client arrays at a vertex buffer and multiplies the current modelview matrix, which
/// the caller has pushed, by the bias and scale of its positions. The buffer must live until
/// finishVertexArrays.
/// @param alphaFactor scales the alpha of unlit colours, 0 to 1
/// @throws std::runtime_error if there are no positions; the matrix stacks stay as they are
void setupVertexArrays(VertexBuffer& vertexBuffer, float alphaFactor, const Appearance& appearance);

/// Draws the strips from the arrays set up last, one call each. A strip that reaches past one of
/// them is skipped.
/// @param mode the primitive of OpenGL ES
void drawIndexBuffer(unsigned mode, const IndexBuffer& indexBuffer);

/// Pops one texture matrix and switches the client arrays off.
void finishVertexArrays();

}  // namespace varnel_m3g

#endif
