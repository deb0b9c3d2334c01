local oak = tree.Tree.create("oak")
local branch = oak:grow(oak.root, "branch")
local leaf = oak:grow(branch, "leaf")
oak:grow(oak.root, "twig")
print(#oak.root, oak.root[1] == branch, leaf.parent.name, oak.root.parent)
print(table.unpack(oak:measure()))

local names = {}
oak:visit(function(node) names[#names + 1] = node.name return node ~= branch end)
print(table.concat(names, " "))

print(pcall(oak.visit, oak, function(node) oak:prune(node) end))

oak:prune(branch)
print(isvalid(branch), isvalid(leaf), #oak.root)
print(pcall(function() return leaf.name end))
print(pcall(oak.grow, oak, nil, "lost"))
print(pcall(oak.prune, oak, oak.root))
print(pcall(function() return oak.root[2] end))
print(pcall(tree.Tree.create, ""))
print(pcall(tree.Node))
local root = oak.root
oak = nil
collectgarbage()
print(root.name, "keeps its tree")
