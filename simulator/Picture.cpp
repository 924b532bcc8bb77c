#include "Picture.h"

#include <UScreenWE1.h>

#include <png.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <optional>
#include <stdexcept>

namespace Simulator {

namespace {

struct Colour {
    std::uint8_t red, green, blue;

    bool operator==(const Colour&) const = default;
};

constexpr Colour Outside{236, 238, 240};
constexpr Colour Frame{43, 46, 52};
constexpr Colour FrameEdge{78, 84, 94};
constexpr Colour Glass{200, 212, 172};
constexpr Colour GlassGap{207, 218, 181};
constexpr Colour Dot{33, 42, 30};
constexpr Colour DotGap{62, 73, 54};

// Of a difference.
constexpr Colour OfShown{208, 32, 32};
constexpr Colour OfGolden{32, 64, 208};

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

std::optional<Colour> colourOf(const Picture& picture, int x, int y)
{
    if (x >= picture.width || y >= picture.height)
        return std::nullopt;
    const auto* bytes = &picture.bytes[(static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width)
                                           + static_cast<std::size_t>(x))
        * 3];
    return Colour{bytes[0], bytes[1], bytes[2]};
}

std::uint8_t paled(std::uint8_t part)
{
    return static_cast<std::uint8_t>(255 - (255 - part) / 4);
}

Colour paled(const Colour& colour)
{
    return {paled(colour.red), paled(colour.green), paled(colour.blue)};
}

/// A picture as libpng wants it: the number of a colour for each pixel. A picture of a glass has seven colours, so its
/// file has half of the size that three bytes a pixel need.
class IndexedPicture {
public:
    explicit IndexedPicture(const Picture& picture)
    {
        mImage.version = PNG_IMAGE_VERSION;
        mImage.width = static_cast<png_uint_32>(picture.width);
        mImage.height = static_cast<png_uint_32>(picture.height);
        mImage.format = PNG_FORMAT_RGB_COLORMAP;
        std::map<std::array<std::uint8_t, 3>, std::uint8_t> numbers;
        for (std::size_t i = 0; i + 2 < picture.bytes.size(); i += 3) {
            const std::array<std::uint8_t, 3> colour{picture.bytes[i], picture.bytes[i + 1], picture.bytes[i + 2]};
            const auto [number, isNew] = numbers.emplace(colour, static_cast<std::uint8_t>(numbers.size()));
            if (isNew)
                mColours.insert(mColours.end(), colour.begin(), colour.end());
            mPixels.push_back(number->second);
        }
        mImage.colormap_entries = static_cast<png_uint_32>(numbers.size());
    }

    /// Without memory `size` becomes what is needed. False with a message when it fails.
    bool write(char* memory, png_alloc_size_t& size)
    {
        return png_image_write_to_memory(&mImage, memory, &size, 0, mPixels.data(), 0, mColours.data()) != 0;
    }

    std::string message() const { return mImage.message; }

private:
    png_image mImage{};
    std::vector<std::uint8_t> mColours;
    std::vector<std::uint8_t> mPixels;
};

}

Picture drawPicture(const UScreenWE1& screen, int scale)
{
    return Drawing(screen, std::max(scale, 1)).picture();
}

Picture drawDifference(const Picture& golden, const Picture& shown)
{
    const Colour none{255, 255, 255};
    Picture result{std::max(golden.width, shown.width), std::max(golden.height, shown.height), {}};
    for (int y = 0; y < result.height; ++y) {
        for (int x = 0; x < result.width; ++x) {
            const Colour was = colourOf(golden, x, y).value_or(none);
            const Colour is = colourOf(shown, x, y).value_or(none);
            const Colour colour = is == was ? paled(is) : is.green < was.green ? OfShown : OfGolden;
            result.bytes.insert(result.bytes.end(), {colour.red, colour.green, colour.blue});
        }
    }
    return result;
}

std::string encodePicture(const Picture& picture)
{
    IndexedPicture indexed(picture);
    png_alloc_size_t size = 0;
    std::string bytes;
    bool isDone = indexed.write(nullptr, size);
    if (isDone) {
        bytes.resize(size);
        isDone = indexed.write(bytes.data(), size);
    }
    if (!isDone)
        throw std::runtime_error("cannot make a picture: " + indexed.message());
    bytes.resize(size);
    return bytes;
}

void writePicture(const Picture& picture, const std::string& file)
{
    std::ofstream output(file, std::ios::binary);
    output << encodePicture(picture) << std::flush;
    if (!output)
        throw std::runtime_error("cannot write the picture " + file);
}

Picture readPicture(const std::string& file)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    Picture picture;
    bool isDone = png_image_begin_read_from_file(&image, file.c_str()) != 0;
    if (isDone) {
        image.format = PNG_FORMAT_RGB;
        picture.width = static_cast<int>(image.width);
        picture.height = static_cast<int>(image.height);
        picture.bytes.resize(PNG_IMAGE_SIZE(image));
        isDone = png_image_finish_read(&image, nullptr, picture.bytes.data(), 0, nullptr) != 0;
    }
    if (!isDone)
        throw std::runtime_error("cannot read the picture " + file + ": " + image.message);
    return picture;
}

}
