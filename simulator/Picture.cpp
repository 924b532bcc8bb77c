#include "Picture.h"

#include <UScreenWE1.h>

#include <png.h>

#include <algorithm>
#include <stdexcept>

namespace Simulator {

namespace {

struct Colour {
    std::uint8_t red, green, blue;
};

constexpr Colour Outside{236, 238, 240};
constexpr Colour Frame{43, 46, 52};
constexpr Colour FrameEdge{78, 84, 94};
constexpr Colour Glass{200, 212, 172};
constexpr Colour GlassGap{207, 218, 181};
constexpr Colour Dot{33, 42, 30};
constexpr Colour DotGap{62, 73, 54};

// All in pixels of the telephone's screen.
constexpr int FrameWidth = 5;
constexpr int GlassMargin = 4;
constexpr int Border = FrameWidth + GlassMargin;
constexpr int CornerRadius = 5;

/// True outside the rounded corners of the frame.
bool isOutside(int x, int y, int width, int height, int radius)
{
    const int dx = std::max({radius - x, x - (width - 1 - radius), 0});
    const int dy = std::max({radius - y, y - (height - 1 - radius), 0});
    return dx * dx + dy * dy > radius * radius;
}

class Drawing {
public:
    Drawing(const UScreenWE1& screen, int scale)
        : mScreen(screen)
        , mScale(scale)
        , mWidth((UScreenWE1::Width + 2 * Border) * scale)
        , mHeight((screen.height() + 2 * Border) * scale)
    {
    }

    Picture picture() const
    {
        Picture result{mWidth, mHeight, {}};
        result.bytes.reserve(static_cast<std::size_t>(mWidth) * static_cast<std::size_t>(mHeight) * 3);
        for (int y = 0; y < mHeight; ++y) {
            for (int x = 0; x < mWidth; ++x) {
                const Colour colour = colourAt(x, y);
                result.bytes.insert(result.bytes.end(), {colour.red, colour.green, colour.blue});
            }
        }
        return result;
    }

private:
    Colour colourAt(int x, int y) const
    {
        if (isOutside(x, y, mWidth, mHeight, CornerRadius * mScale))
            return Outside;
        const int edge = std::min({x, y, mWidth - 1 - x, mHeight - 1 - y});
        if (edge < FrameWidth * mScale)
            return edge >= FrameWidth * mScale - std::max(mScale / 2, 1) ? FrameEdge : Frame;
        const int column = x / mScale - Border;
        const int row = y / mScale - Border;
        // A fine line between the dots, as on a real glass; there is room for it from three pixels on.
        const bool isGap = mScale >= 3 && (x % mScale == mScale - 1 || y % mScale == mScale - 1);
        if (mScreen.pixel(column, row))
            return isGap ? DotGap : Dot;
        const bool isDotPlace = column >= 0 && column < UScreenWE1::Width && row >= 0 && row < mScreen.height();
        return isGap && isDotPlace ? GlassGap : Glass;
    }

    const UScreenWE1& mScreen;
    int mScale;
    int mWidth;
    int mHeight;
};

png_image headerOf(const Picture& picture)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    return image;
}

}

Picture drawPicture(const UScreenWE1& screen, int scale)
{
    return Drawing(screen, std::max(scale, 1)).picture();
}

std::string encodePicture(const Picture& picture)
{
    png_image image = headerOf(picture);
    png_alloc_size_t size = 0;
    std::string bytes;
    bool isDone = png_image_write_to_memory(&image, nullptr, &size, 0, picture.bytes.data(), 0, nullptr) != 0;
    if (isDone) {
        bytes.resize(size);
        isDone = png_image_write_to_memory(&image, bytes.data(), &size, 0, picture.bytes.data(), 0, nullptr) != 0;
    }
    if (!isDone)
        throw std::runtime_error(std::string("cannot make a picture: ") + image.message);
    bytes.resize(size);
    return bytes;
}

void writePicture(const Picture& picture, const std::string& file)
{
    png_image image = headerOf(picture);
    if (png_image_write_to_file(&image, file.c_str(), 0, picture.bytes.data(), 0, nullptr) == 0)
        throw std::runtime_error("cannot write the picture " + file + ": " + image.message);
}

}
