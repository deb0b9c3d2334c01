#include "orbis/factory.hpp"
#include "orbis/factory/Implemented.hpp"

#include <memory>
#include <string>
#include <vector>

class Shape {
public:
    virtual ~Shape() = default;
    virtual double area() const = 0;
    virtual void scale(double factor) = 0;
    virtual std::string name() const { return "a shape"; }
};

class Drawing {
public:
    void add(std::unique_ptr<Shape> shape) { shapes_.push_back(std::move(shape)); }

    void setFrame(std::shared_ptr<Shape> frame) { frame_ = std::move(frame); }

    void scale(double factor)
    {
        for (auto const& shape : shapes_)
            shape->scale(factor);
    }

    std::string describe() const
    {
        std::string text = frame_ ? "in " + frame_->name() + ": " : "";
        for (auto const& shape : shapes_)
            text += shape->name() + " of " + std::to_string(static_cast<int>(shape->area())) + "; ";
        return text;
    }

private:
    std::vector<std::unique_ptr<Shape>> shapes_;
    std::shared_ptr<Shape> frame_;
};

struct ScriptShape : orbis::factory::Implemented<Shape> {
    double area() const override { return call<double>("area"); }
    void scale(double factor) override { call<void>("scale", factor); }
    std::string name() const override { return has("name") ? call<std::string>("name") : Shape::name(); }
};

void publishModule(orbis::factory::Module& shapes)
{
    shapes.publish<Shape>("Shape", "Anything with an area")
        .implementedBy<ScriptShape>()
        .method("area", &Shape::area)
        .method("scale", &Shape::scale, "factor");
    shapes.publish<Drawing>("Drawing")
        .constructor()
        .method("add", &Drawing::add, "shape")
        .method("setFrame", &Drawing::setFrame, "frame")
        .method("scale", &Drawing::scale, "factor")
        .method("describe", &Drawing::describe);
}
